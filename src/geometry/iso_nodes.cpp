#include "geometry/iso_nodes.h"

#include <algorithm>
#include <array>

#include "geometry/missing_node.h"

namespace tessaplot::geometry {

namespace {

/// Steps from a value to its neighbours along an index, 0 where there is none.
struct Steps {
    std::ptrdiff_t low;
    std::ptrdiff_t high;

    Steps(int at, int highest, std::ptrdiff_t stride) : low(at > 0 ? -stride : 0), high(at < highest ? stride : 0) {}
};

/// How far the value falls between the neighbours; the node stands for one that is missing or not usable.
float fallAcross(const double* node, const Steps& steps) {
    const auto beside = [node](std::ptrdiff_t step) {
        return static_cast<float>(isUsable(node[step]) ? node[step] : *node);
    };
    return beside(steps.low) - beside(steps.high);
}

IsoPoint normalised(const IsoPoint& fall) {
    const float length = lengthOf(fall);
    return length == 0 ? IsoPoint{1, 0, 0} : divided(fall, length);
}

}  // namespace

void IsoNodes::fetchLine(int j, int k, LineBits bits) const {
    const std::array<const double*, 5> lines = {X_.line(j, k), Y_.line(j, k), Z_.line(j, k), V_.line(j, k),
                                                V_.line(j, std::min(k + 1, nz_))};
    forEachBit(bits, [&lines](int i) {
        for (const double* line : lines)
            __builtin_prefetch(line + i);
        // Code that does nothing but prefetch passes for code without effect and would be left out.
        asm volatile("");
    });
}

void IsoNodes::addLine(int j, int k, LineBits bits, std::vector<IsoNode>& nodes, std::uint16_t* nodeAt) const {
    const double* x = X_.line(j, k);
    const double* y = Y_.line(j, k);
    const double* z = Z_.line(j, k);
    const double* v = V_.line(j, k);
    const Steps alongJ(j, ny_, V_.strideJ);
    const Steps alongK(k, nz_, V_.strideK);
    forEachBit(bits, [&](int i) {
        const Steps alongI(i, nx_, 1);
        nodeAt[i] = static_cast<std::uint16_t>(nodes.size());
        nodes.push_back({{static_cast<float>(x[i]), static_cast<float>(y[i]), static_cast<float>(z[i])},
                         static_cast<float>(v[i]),
                         normalised({fallAcross(v + i, alongI), fallAcross(v + i, alongJ), fallAcross(v + i, alongK)}),
                         isUsable(x[i]) && isUsable(y[i]) && isUsable(z[i])});
    });
}

}  // namespace tessaplot::geometry

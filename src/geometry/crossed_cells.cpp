#include "geometry/crossed_cells.h"

#include <algorithm>
#include <array>
#include <limits>

#include "geometry/missing_node.h"

namespace tessaplot::geometry {

namespace {

constexpr int blockSize = 32;
constexpr int laneCount = 4;
using Doubles = double __attribute__((vector_size(32), aligned(8), may_alias));
using Floats = float __attribute__((vector_size(16)));
using Bits = std::int32_t __attribute__((vector_size(16)));

constexpr Floats all(float value) {
    return Floats{value, value, value, value};
}

/// Bit n tells of node n.
std::uint32_t usableNodes(const double* values) {
    std::uint32_t usable = 0;
    for (int n = 0; n < blockSize; ++n)
        usable |= isUsable(values[n]) ? 1U << n : 0;
    return usable;
}

}  // namespace

void CrossedCells::classifyBlock(const double* values, int first, float level, Classes& classes) {
    constexpr float largest = std::numeric_limits<float>::max();
    constexpr auto marker = static_cast<float>(base::missingValue);
    Bits below{};
    Bits plain = ~Bits{};
    for (int n = 0; n < blockSize; n += laneCount) {
        const auto value = __builtin_convertvector(*reinterpret_cast<const Doubles*>(values + n), Floats);
        below |= (value < all(level)) & (Bits{1, 2, 4, 8} << n);
        plain &= (value <= all(largest)) & (value >= all(-largest)) & (value != all(marker));
    }
    const bool allPlain = (plain[0] & plain[1] & plain[2] & plain[3]) != 0;
    const std::uint32_t usable = allPlain ? ~0U : usableNodes(values);
    classes.below |= static_cast<LineBits>(static_cast<std::uint32_t>(below[0] | below[1] | below[2] | below[3]))
                     << first;
    classes.usable |= static_cast<LineBits>(usable) << first;
}

CrossedCells::Classes CrossedCells::classified(const double* values, int count, float level) {
    Classes classes;
    if (count < blockSize) {
        std::array<double, blockSize> padded{};
        std::fill(std::copy(values, values + count, padded.begin()), padded.end(), base::missingValue);
        classifyBlock(padded.data(), 0, level, classes);
        return classes;
    }
    for (int first = 0; first + blockSize < count; first += blockSize)
        classifyBlock(values + first, first, level, classes);
    classifyBlock(values + count - blockSize, count - blockSize, level, classes);
    return classes;
}

CrossedCells::CrossedCells(int nx, int ny, int nz, const base::CheckedArray<double>& V, float level)
    : stride_(static_cast<std::size_t>(ny) + 3), lines_((static_cast<std::size_t>(nz) + 3) * stride_) {
    std::vector<LineBits> usable(static_cast<std::size_t>(ny) + 1);  // At the present third index and the one before.
    std::vector<LineBits> usableInBoth(usable.size());
    for (int k = 0; k <= nz; ++k) {
        for (std::size_t j = 0; j < usable.size(); ++j) {
            const Classes classes = classified(&V(0, static_cast<int>(j), k), nx + 1, level);
            lines_[at(static_cast<int>(j), k)].below = classes.below;
            usableInBoth[j] = usable[j] & classes.usable;
            usable[j] = classes.usable;
        }
        for (std::size_t j = 0; k > 0 && j + 1 < usable.size(); ++j) {
            const LineBits round = usableInBoth[j] & usableInBoth[j + 1];
            lines_[at(static_cast<int>(j), k - 1)].cells = mixedCells(static_cast<int>(j), k - 1) & round & round >> 1;
        }
    }
}

/// The cells with corners on both sides of the level.
LineBits CrossedCells::mixedCells(int j, int k) const {
    const std::array<LineBits, 4> round = {line(j, k).below, line(j + 1, k).below, line(j, k + 1).below,
                                           line(j + 1, k + 1).below};
    const LineBits every = round[0] & round[1] & round[2] & round[3];
    const LineBits any = round[0] | round[1] | round[2] | round[3];
    return (any | any >> 1) & ~(every & every >> 1);
}

EdgeBits CrossedCells::edges(int j, int k) const {
    const LineBits below = line(j, k).below;
    const LineBits besideJ = row(j, k) | row(j, k - 1);
    const LineBits besideK = row(j, k) | row(j - 1, k);
    const LineBits besideI = besideJ | besideK | row(j - 1, k - 1);
    return {(below ^ below >> 1) & besideI, (below ^ line(j + 1, k).below) & (besideJ | besideJ << 1),
            (below ^ line(j, k + 1).below) & (besideK | besideK << 1)};
}

}  // namespace tessaplot::geometry

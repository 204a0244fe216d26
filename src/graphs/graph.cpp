#include "graphs/graph.h"

#include "base/failure.h"
#include "graphs/color_fill.h"

namespace tessaplot::graphs {

namespace {

constexpr int lastColorStop = 30;
constexpr int lastTableIndex = 200;

}  // namespace

SliceSet::Slice& SliceSet::operator[](int i) {
    if (i < 0 || i > maximum) base::failSubscript("Slice", i, 0, maximum);
    if (slices_.empty()) slices_.resize(maximum + 1);
    return slices_[static_cast<std::size_t>(i)];
}

const SliceSet::Slice& SliceSet::operator[](int i) const {
    static const Slice unwritten;
    if (i < 0 || i > maximum) base::failSubscript("Slice", i, 0, maximum);
    return slices_.empty() ? unwritten : slices_[static_cast<std::size_t>(i)];
}

Cls9::Cls9() {
    ColorPos.allocate(lastColorStop);
    ColorR.allocate(lastColorStop);
    ColorG.allocate(lastColorStop);
    ColorB.allocate(lastColorStop);
    ApplyNamedMap(*this, "Rainbow");
}

scene::Cls2& Cls9::VertTab3D(int i, int j) {
    if (i < 0 || i > lastTableIndex) base::failSubscript("VertTab3D", i, 0, lastTableIndex);
    if (j < 0 || j > lastTableIndex) base::failSubscript("VertTab3D", j, 0, lastTableIndex);
    return vertexTable_[i * (lastTableIndex + 1) + j];
}

}  // namespace tessaplot::graphs

#include "graphs/slice_plane.h"

#include <algorithm>

#include "base/failure.h"

namespace tessaplot::graphs {

namespace {

int checkedLimit(int limit, int last, const std::string& name) {
    if (limit < 1 || limit > last + 1)
        throw base::Failure(base::FailureCode::SubscriptOutOfRange,
                            "The limits of " + name + " lie outside the grid: " + std::to_string(limit) +
                                " is not in 1 to " + std::to_string(last + 1) + ".");
    return limit - 1;
}

double between(double from, double to, double weight) {
    return from + (to - from) * weight;
}

VolumeNode between(const VolumeNode& lower, const VolumeNode& upper, double weight) {
    return {{between(lower.at.x, upper.at.x, weight), between(lower.at.y, upper.at.y, weight),
             between(lower.at.z, upper.at.z, weight)},
            between(lower.value, upper.value, weight)};
}

/// The node of the volume on a layer.
VolumeNode nodeOn(const VolumeGrid& volume, const SliceLayer& layer, VolumePlace place, VolumeAxis across) {
    along(place, across) = layer.lower;
    VolumeNode node = volume(place);
    if (layer.lower != layer.upper && !isMissing(node)) {
        along(place, across) = layer.upper;
        const VolumeNode upper = volume(place);
        node = isMissing(upper) ? upper : between(node, upper, layer.weight);
    }
    if (isMissing(node)) node.value = data::missingValue;
    return node;
}

}  // namespace

SliceLimits limitsOf(const SliceSet::Slice& slice, const std::string& name, int lastU, int lastV) {
    const auto first = [&](int limit, int last) { return limit == 0 ? 0 : checkedLimit(limit, last, name); };
    const auto end = [&](int limit, int last) { return limit == 0 ? last : checkedLimit(limit, last, name); };
    return {first(slice.FirstBegin, lastU), end(slice.FirstEnd, lastU), first(slice.SecondBegin, lastV),
            end(slice.SecondEnd, lastV)};
}

SlicePlane::SlicePlane(const VolumeGrid& volume, const SliceDirection& direction, double position,
                       const SliceLayer& layer, const SliceLimits& limits)
    : countU_(std::max(limits.lastU - limits.firstU + 1, 0)),
      countV_(std::max(limits.lastV - limits.firstV + 1, 0)),
      nodes_(countU_, countV_) {  // One more than needed along both axes, so that there may be none.
    for (int u = 0; u < countU_; ++u) {
        for (int v = 0; v < countV_; ++v) {
            VolumePlace place{};
            along(place, direction.first) = limits.firstU + u;
            along(place, direction.second) = limits.firstV + v;
            VolumeNode& node = nodes_(u, v);
            node = nodeOn(volume, layer, place, direction.across);
            along(node.at, direction.across) = position;
        }
    }
}

}  // namespace tessaplot::graphs

#pragma once

#include <string>

#include "graphs/contour_lines.h"
#include "graphs/grid_table.h"
#include "graphs/slice_layer.h"
#include "graphs/volume_grid.h"

namespace tessaplot::graphs {

/// How the slices across an axis lie: the axis, those of their plane (the first of them is the first index of their
/// limits), and what is fixed about their drawing.
struct SliceDirection {
    VolumeAxis across;
    VolumeAxis first;
    VolumeAxis second;
    char name;
    ContourPass contourPass;
    std::array<double, 3> normal;
};

inline constexpr SliceDirection acrossZ{VolumeAxis::Z, VolumeAxis::X,        VolumeAxis::Y,
                                        'Z',           ContourPass::AcrossZ, {0, 1, 0}};
inline constexpr SliceDirection acrossY{VolumeAxis::Y, VolumeAxis::X,        VolumeAxis::Z,
                                        'Y',           ContourPass::AcrossY, {0, 0, 1}};
inline constexpr SliceDirection acrossX{VolumeAxis::X, VolumeAxis::Y,        VolumeAxis::Z,
                                        'X',           ContourPass::AcrossX, {1, 0, 0}};

/// The part of a slice that is drawn: first and last index of the nodes along both axes of its plane, from 0.
struct SliceLimits {
    int firstU = 0;
    int lastU = 0;
    int firstV = 0;
    int lastV = 0;
};

/// The limits of a slice, which count from 1; one of 0 is the end of the grid. Throws SubscriptOutOfRange, naming the
/// slice, for one outside the grid.
SliceLimits limitsOf(const SliceSet::Slice& slice, const std::string& name, int lastU, int lastV);

/// The nodes of one slice within its limits, brought to its plane.
class SlicePlane {
 public:
    /// `position` is that of the plane along its axis, in scene units.
    SlicePlane(const VolumeGrid& volume, const SliceDirection& direction, double position, const SliceLayer& layer,
               const SliceLimits& limits);

    /// Nodes along both axes; none if the limits are in the wrong order.
    int countU() const { return countU_; }
    int countV() const { return countV_; }
    std::size_t nodeCount() const { return static_cast<std::size_t>(countU_) * static_cast<std::size_t>(countV_); }
    /// Node (u, v) of the part that is drawn, from 0. One without data has the value that marks such nodes.
    const VolumeNode& operator()(int u, int v) const { return nodes_(u, v); }

 private:
    int countU_;
    int countV_;
    GridTable<VolumeNode> nodes_;
};

}  // namespace tessaplot::graphs

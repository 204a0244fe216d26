#pragma once

#include <array>
#include <cstddef>
#include <span>

#include "graphs/mesh_cell.h"

namespace tessaplot::graphs {

/// A data axis, which is also the index of a volume that runs along it.
enum class VolumeAxis : std::size_t { X, Y, Z };

/// The component of a place in scene axes that holds a data axis.
constexpr double& along(Node& place, VolumeAxis axis) {
    return axis == VolumeAxis::X ? place.z : axis == VolumeAxis::Y ? place.x : place.y;
}
constexpr double along(const Node& place, VolumeAxis axis) {
    return axis == VolumeAxis::X ? place.z : axis == VolumeAxis::Y ? place.x : place.y;
}

/// Indices of a node, by axis.
using VolumePlace = std::array<int, 3>;

constexpr int& along(VolumePlace& place, VolumeAxis axis) {
    return place[static_cast<std::size_t>(axis)];
}
constexpr int along(const VolumePlace& place, VolumeAxis axis) {
    return place[static_cast<std::size_t>(axis)];
}

/// A node of a volume: where it lies, in scene axes, and its value.
struct VolumeNode {
    Node at;
    double value = 0;
};

inline bool isMissing(const VolumeNode& node) {
    return isMissing(node.at) || isMissing(node.value);
}

/// The most nodes that can be marked one by one, those of 101 along each axis: so many solids take a minute to draw.
inline constexpr std::size_t mostMarkedNodes = 101 * 101 * 101;

/// The part of the data set's volume that a graph draws: nodes (0, 0, 0) to its last indices.
class VolumeGrid {
 public:
    /// Throws SubscriptOutOfRange if the data set holds fewer nodes.
    VolumeGrid(const data::ClsData& data, const Cls9& graph);

    const VolumePlace& last() const { return last_; }
    std::size_t nodeCount() const;
    /// Throws SubscriptOutOfRange for more than `mostMarkedNodes`.
    void requireMarkable() const;
    /// Indices are not checked.
    VolumeNode operator()(const VolumePlace& place) const {
        const std::size_t n = offset(place);
        return {{y_[n], z_[n], x_[n]}, value_[n]};
    }

 private:
    std::size_t offset(const VolumePlace& place) const {
        return static_cast<std::size_t>(place[0]) + strideJ_ * static_cast<std::size_t>(place[1]) +
               strideK_ * static_cast<std::size_t>(place[2]);
    }

    VolumePlace last_;
    std::size_t strideJ_;
    std::size_t strideK_;
    std::span<const double> x_;
    std::span<const double> y_;
    std::span<const double> z_;
    std::span<const double> value_;
};

}  // namespace tessaplot::graphs

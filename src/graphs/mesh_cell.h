#pragma once

#include <algorithm>
#include <array>
#include <cmath>

#include "graphs/emitters.h"

namespace tessaplot::graphs {

/// A place in the plane of a grid, in data axes.
struct PlanePoint {
    double x = 0;
    double y = 0;
};

/// The indices of a node.
struct Place {
    int i;
    int j;
};

/// How many cells a graph draws of its grid.
inline std::size_t cellCount(const Cls9& graph) {
    return static_cast<std::size_t>(graph.StepU) * static_cast<std::size_t>(graph.StepV);
}

/// The corners of cell (i, j) in the order in which they are drawn.
constexpr std::array<Place, 4> cornersOf(int i, int j) {
    return {{{i, j}, {i + 1, j}, {i + 1, j + 1}, {i, j + 1}}};
}

/// True for a coordinate or value that cannot be drawn: the marker, or no finite number.
inline bool isMissing(double value) {
    return value == data::missingValue || !std::isfinite(value);
}
inline bool isMissing(const Node& node) {
    return isMissing(node.x) || isMissing(node.y) || isMissing(node.z);
}

/// True if a corner of the cell is a node without data: such a cell is left out.
inline bool isHole(const NodeTable& nodes, const std::array<Place, 4>& corners) {
    return std::ranges::any_of(corners, [&](const Place& at) { return isMissing(nodes(at.i, at.j)); });
}

/// A vertex of a 3D scene.
inline void emitUpright(gl::DisplayList& list, const scene::SceneState& scene, double x, double y, double z) {
    list.glVertex3d(x - scene.SceneCenterX, y - scene.SceneCenterY, z - scene.SceneCenterZ);
}

/// A vertex of a flat plot seen from above: data X runs along the first axis, data Y along the second.
inline void emitPlan(gl::DisplayList& list, const scene::SceneState& scene, const PlanePoint& at, double height) {
    list.glVertex3d(at.x - scene.SceneCenterZ, at.y - scene.SceneCenterX, height - scene.SceneCenterY);
}

}  // namespace tessaplot::graphs

#pragma once

#include <algorithm>
#include <array>

#include "graphs/emitters.h"

namespace tessaplot::graphs {

/// The indices of a node.
struct Place {
    int i;
    int j;
};

/// The corners of cell (i, j) in the order in which they are drawn.
constexpr std::array<Place, 4> cornersOf(int i, int j) {
    return {{{i, j}, {i + 1, j}, {i + 1, j + 1}, {i, j + 1}}};
}

inline bool isMissing(const Node& node) {
    return node.x == data::missingValue || node.y == data::missingValue || node.z == data::missingValue;
}

/// True if a corner of the cell is a node without data: such a cell is left out.
inline bool isHole(const NodeTable& nodes, const std::array<Place, 4>& corners) {
    return std::ranges::any_of(corners, [&](const Place& at) { return isMissing(nodes(at.i, at.j)); });
}

/// A vertex of a 3D scene.
inline void emitUpright(gl::DisplayList& list, const scene::SceneState& scene, double x, double y, double z) {
    list.glVertex3d(x - scene.SceneCenterX, y - scene.SceneCenterY, z - scene.SceneCenterZ);
}

}  // namespace tessaplot::graphs

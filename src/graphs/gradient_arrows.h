#pragma once

#include <array>
#include <cmath>
#include <cstddef>

#include "graphs/color_fill.h"
#include "graphs/flat_drawing.h"
#include "graphs/make_room.h"
#include "graphs/mesh_cell.h"

namespace tessaplot::graphs {

/// How far a value changes from node to node along both axes of a grid.
struct Gradient {
    double alongU = 0;
    double alongV = 0;
};

/// The gradient of `valueAt(i, j)` at an inner node, the mean of its differences to both sides; false if the node or
/// one of its four neighbours has no value.
template <class Value>
bool gradientAt(const Value& valueAt, int i, int j, Gradient& gradient) {
    const double here = valueAt(i, j);
    const double beforeU = valueAt(i - 1, j);
    const double beforeV = valueAt(i, j - 1);
    const double afterU = valueAt(i + 1, j);
    const double afterV = valueAt(i, j + 1);
    for (const double value : {here, beforeU, beforeV, afterU, afterV})
        if (isMissing(value)) return false;
    gradient.alongU = ((here - beforeU) + (afterU - here)) / 2;
    gradient.alongV = ((here - beforeV) + (afterV - here)) / 2;
    return true;
}

/// The heights at which an arrow lies: its shaft with the tip, and the rim of its head.
struct ArrowHeights {
    double shaft = 0;
    double rim = 0;
};

/// How many triangles the head of an arrow has.
inline constexpr std::size_t arrowHeadSteps = 20;

/// The rim of an arrow's head about its tip, a hair past a full turn.
inline const std::array<PlanePoint, arrowHeadSteps + 1>& arrowRim() {
    static const auto rim = [] {
        constexpr double radius = 0.04;
        constexpr double stepAngle = 0.31416;
        std::array<PlanePoint, arrowHeadSteps + 1> points;
        for (std::size_t t = 0; t < points.size(); ++t) {
            const double angle = static_cast<double>(t) * stepAngle;
            points[t] = {std::cos(angle) * radius, std::sin(angle) * radius};
        }
        return points;
    }();
    return rim;
}

/// Emits one arrow, a line with a disc at its end; `vertex(point, height)` emits a vertex. The second corner of each
/// triangle of the disc keeps the Y of the first: the disc is ragged.
template <class Vertex>
void emitPlaneArrow(gl::DisplayList& list, const PlanePoint& from, const PlanePoint& tip, const ArrowHeights& heights,
                    const Vertex& vertex) {
    list.glBegin(GL_LINES);
    vertex(from, heights.shaft);
    vertex(tip, heights.shaft);
    list.glEnd();
    const auto& rim = arrowRim();
    for (std::size_t t = 0; t < arrowHeadSteps; ++t) {
        const PlanePoint onRim{tip.x + rim[t].x, tip.y + rim[t].y};
        list.glBegin(GL_TRIANGLES);
        vertex(onRim, heights.rim);
        vertex({tip.x + rim[t + 1].x, onRim.y}, heights.rim);
        vertex(tip, heights.shaft);
        list.glEnd();
    }
}

/// Emits the gradient of `valueAt(i, j)` as an arrow at each inner node that has a place, unlit and in one colour.
template <class Value, class Vertex>
void emitGradientArrows(gl::DisplayList& list, const Cls9& graph, const NodeTable& nodes, const Rgb& color,
                        const Value& valueAt, const ArrowHeights& heights, const Vertex& vertex) {
    makeRoom(list, (4 + 5 * arrowHeadSteps) * cellCount(graph), (7 + 10 * arrowHeadSteps) * cellCount(graph));
    beginFlatDrawing(list);
    emitFloatColor(list, color);
    for (int i = 1; i < graph.StepU; ++i) {
        for (int j = 1; j < graph.StepV; ++j) {
            Gradient gradient;
            const Node& node = nodes(i, j);
            if (isMissing(node.x) || isMissing(node.z) || !gradientAt(valueAt, i, j, gradient)) continue;
            const PlanePoint from{node.z, node.x};
            emitPlaneArrow(list, from, {from.x + gradient.alongU, from.y + gradient.alongV}, heights, vertex);
        }
    }
    endFlatLines(list);
}

}  // namespace tessaplot::graphs

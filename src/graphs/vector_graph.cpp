#include "graphs/color_fill.h"
#include "graphs/flat_drawing.h"
#include "graphs/gradient_arrows.h"
#include "graphs/make_room.h"
#include "graphs/mesh_cell.h"

namespace tessaplot::graphs {

void emitVectors(gl::DisplayList& list, const Cls9& graph, const GraphContext& context, const NodeTable& nodes) {
    const auto heightOf = [&](int i, int j) { return nodes(i, j).y; };
    const auto vertex = [&](const PlanePoint& at, double height) { emitPlan(list, context.scene, at, height); };
    const ArrowHeights heights{graph.MinZ, 0};
    makeRoomForArrows(list, graph);
    beginFlatDrawing(list);
    const Rgb color = ColorToRGB(graph.VectorColor);
    list.glColor3f(static_cast<float>(color.r), static_cast<float>(color.g), static_cast<float>(color.b));
    for (int i = 1; i < graph.StepU; ++i) {
        for (int j = 1; j < graph.StepV; ++j) {
            Gradient gradient;
            if (isMissing(nodes(i, j)) || !gradientAt(heightOf, i, j, gradient)) continue;
            const Node& node = nodes(i, j);
            emitPlaneArrow(list, {node.z, node.x}, {node.z + gradient.alongU, node.x + gradient.alongV}, heights,
                           vertex);
        }
    }
    endFlatLines(list);
}

}  // namespace tessaplot::graphs

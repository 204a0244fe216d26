#include "graphs/gradient_arrows.h"

namespace tessaplot::graphs {

void emitVectors(gl::DisplayList& list, const Cls9& graph, const GraphContext& context, const NodeTable& nodes) {
    const auto heightOf = [&](int i, int j) { return nodes(i, j).y; };
    const auto vertex = [&](const PlanePoint& at, double height) { emitPlan(list, context.scene, at, height); };
    emitGradientArrows(list, graph, nodes, ColorToRGB(graph.VectorColor), heightOf, {graph.MinZ, 0}, vertex);
}

}  // namespace tessaplot::graphs

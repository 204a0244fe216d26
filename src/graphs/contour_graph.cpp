#include "graphs/contour_lines.h"
#include "graphs/emitters.h"

namespace tessaplot::graphs {

void emitContourPlot(gl::DisplayList& list, Cls9& graph, const GraphContext& context) {
    const auto heightOf = [&](int i, int j) { return context.data.Reg3DZ(i, j); };
    const ContourStyle style{graph.ContourLevels, graph.ConFillType, graph.ConColor1, graph.ConColor2, graph.ConWidth};
    emitContourLines(list, graph, context, surfaceGrid(graph, context, heightOf), graph.MinZ, style, ContourPass::None);
}

}  // namespace tessaplot::graphs

#include "base/failure.h"
#include "graphs/color_fill.h"
#include "graphs/emitters.h"
#include "graphs/graph.h"
#include "scene/material.h"

namespace tessaplot::graphs {

namespace {

constexpr int neon = 5;

bool isPlanPlot(int type) {
    return type >= graph_type::colorMap && type <= graph_type::nodesOnly;
}

void requireSteps(const Cls9& graph) {
    if (graph.StepU < 0 || graph.StepV < 0)
        throw base::Failure(base::FailureCode::SubscriptOutOfRange,
                            "A graph cannot be drawn: its steps are less than zero.");
}

void emitMaterial(gl::DisplayList& list, int type) {
    list.glEnable(GL_COLOR_MATERIAL);
    list.glColorMaterial(GL_FRONT_AND_BACK, type == neon ? GL_EMISSION : GL_DIFFUSE);
    scene::Cls11 material;
    material.SetMaterial(list, type);
}

void emitKind(gl::DisplayList& list, Cls9& graph, const GraphContext& context) {
    switch (graph.GraphType) {
        case graph_type::table:
            emitTable(list, graph, context);
            break;
        case graph_type::point:
            emitPoint(list, graph, context);
            break;
        case graph_type::surface:
            emitSurface(list, graph, context, NodeTable(context.data, graph.StepU, graph.StepV));
            break;
        case graph_type::delaunay:
            emitTriangles(list, graph, context);
            break;
        case graph_type::vertexModel:
            emitVertexModel(list, graph, context, NodeTable(context.data, graph.StepU, graph.StepV));
            break;
        case graph_type::gridModel:
            emitGridModel(list, graph, context, NodeTable(context.data, graph.StepU, graph.StepV));
            break;
        default:
            break;
    }
}

}  // namespace

void Cls9::Draw(gl::DisplayList& list, const GraphContext& context) {
    requireSteps(*this);
    applyPlainMap(*this);
    GetBox(context);
    if (isPlanPlot(GraphType)) requireGrid(context.data, StepU, StepV);
    // The fill of a surface runs over its true range, without the room that the box keeps for overlays.
    if (GraphType == graph_type::surface && (ShowContour || ShowVector || ShowColormap)) MinZ += 3.0;
    if (StepU == 0) StepU = 1;
    if (StepV == 0) StepV = 1;
    emitMaterial(list, Material);
    emitKind(list, *this, context);
}

}  // namespace tessaplot::graphs

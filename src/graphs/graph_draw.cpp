#include <array>

#include "base/failure.h"
#include "graphs/color_fill.h"
#include "graphs/emitters.h"
#include "graphs/graph.h"
#include "scene/material.h"

namespace tessaplot::graphs {

namespace {

/// Kinds that no command makes: colour maps whose nodes are never filled.
constexpr std::array blankMap{2, 12, 21, 22};

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
    list.glColorMaterial(GL_FRONT_AND_BACK, type == scene::neon ? GL_EMISSION : GL_DIFFUSE);
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
        case graph_type::colorMap:
            emitColorMap(list, graph, context, NodeTable(context.data, graph.StepU, graph.StepV));
            break;
        case blankMap[0]:
        case blankMap[1]:
        case blankMap[2]:
        case blankMap[3]:
            requireGrid(context.data, graph.StepU, graph.StepV);
            emitColorMap(list, graph, context, NodeTable(graph.StepU, graph.StepV));
            break;
        case graph_type::contour:
            emitContourPlot(list, graph, context);
            break;
        case graph_type::vector:
            emitVectors(list, graph, context, NodeTable(context.data, graph.StepU, graph.StepV));
            break;
        case graph_type::contour3D:
            emitContour3D(list, graph, context);
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
        case graph_type::scatter4D:
            emitScatter4D(list, graph, context);
            break;
        case graph_type::vector4D:
            emitVectors4D(list, graph, context);
            break;
        case graph_type::slice4D:
            emitSlices4D(list, graph, context);
            break;
        case graph_type::isoSurface:
            emitIsoSurface(list, graph, context);
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

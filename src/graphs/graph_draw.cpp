#include "base/failure.h"
#include "graphs/color_fill.h"
#include "graphs/emitters.h"
#include "graphs/graph.h"
#include "graphs/surface_overlays.h"
#include "scene/material.h"

namespace tessaplot::graphs {

namespace {

/// Kinds that no command makes: colour maps whose nodes are never filled.
bool isBlankMap(int type) {
    return type == 2 || type == 12 || type == 21 || type == 22;
}

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

void emitBlankMap(gl::DisplayList& list, Cls9& graph, const GraphContext& context) {
    requireGrid(context.data, graph.StepU, graph.StepV);
    emitColorMap(list, graph, context, NodeTable(graph.StepU, graph.StepV));
}

void emitKind(gl::DisplayList& list, Cls9& graph, const GraphContext& context) {
    const auto nodes = [&] { return NodeTable(context.data, graph.StepU, graph.StepV); };
    switch (graph.GraphType) {
        case graph_type::table:
            return emitTable(list, graph, context);
        case graph_type::point:
            return emitPoint(list, graph, context);
        case graph_type::surface:
            return emitSurface(list, graph, context, nodes());
        case graph_type::colorMap:
            return emitColorMap(list, graph, context, nodes());
        case graph_type::contour:
            return emitContourPlot(list, graph, context);
        case graph_type::vector:
            return emitVectors(list, graph, context, nodes());
        case graph_type::contour3D:
            return emitContour3D(list, graph, context);
        case graph_type::delaunay:
            return emitTriangles(list, graph, context);
        case graph_type::vertexModel:
            return emitVertexModel(list, graph, context, nodes());
        case graph_type::gridModel:
            return emitGridModel(list, graph, context, nodes());
        case graph_type::scatter4D:
            return emitScatter4D(list, graph, context);
        case graph_type::vector4D:
            return emitVectors4D(list, graph, context);
        case graph_type::slice4D:
            return emitSlices4D(list, graph, context);
        case graph_type::isoSurface:
            return emitIsoSurface(list, graph, context);
        default:
            if (isBlankMap(graph.GraphType)) emitBlankMap(list, graph, context);
    }
}

}  // namespace

void Cls9::Draw(gl::DisplayList& list, const GraphContext& context) {
    requireSteps(*this);
    applyPlainMap(*this);
    GetBox(context);
    if (isPlanPlot(GraphType)) requireGrid(context.data, StepU, StepV);
    // The fill of a surface runs over its true range, without the room that the box keeps for overlays.
    if (GraphType == graph_type::surface && hasOverlays(*this)) MinZ += overlayDepth;
    if (StepU == 0) StepU = 1;
    if (StepV == 0) StepV = 1;
    emitMaterial(list, Material);
    emitKind(list, *this, context);
}

}  // namespace tessaplot::graphs

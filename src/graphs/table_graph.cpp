#include "graphs/color_fill.h"
#include "graphs/emitters.h"
#include "graphs/flat_drawing.h"
#include "graphs/over_scale.h"

namespace tessaplot::graphs {

namespace {

void emitVertex(gl::DisplayList& list, const scene::Cls2& cell, const GraphContext& context) {
    const data::Scaling& scaling = context.scaling;
    list.glVertex3d(overScale(cell.x, scaling.ScaleX) - context.scene.SceneCenterZ,
                    overScale(cell.y, scaling.ScaleY) - context.scene.SceneCenterX,
                    overScale(cell.z, scaling.ScaleZ) - context.scene.SceneCenterY);
}

void emitMarker(gl::DisplayList& list, scene::Cls2& cell, const GraphContext& context) {
    cell.size = 2.0;
    cell.Symbol = 2;
    cell.Color = 0;
    cell.Draw(list, context.scene);
}

}  // namespace

void emitTable(gl::DisplayList& list, Cls9& graph, const GraphContext& context) {
    emitColor(list, ColorToRGB(graph.LineColor));
    for (int j = 0; j < graph.StepV; ++j) {
        list.glBegin(GL_LINES);
        emitVertex(list, graph.VertTab3D(0, j), context);
        emitVertex(list, graph.VertTab3D(0, j + 1), context);
        list.glEnd();
    }
    for (int j = 0; j <= graph.StepV; ++j)
        emitMarker(list, graph.VertTab3D(0, j), context);
    endFlatLines(list);
}

}  // namespace tessaplot::graphs

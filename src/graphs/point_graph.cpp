#include <cmath>

#include "base/angle.h"
#include "graphs/emitters.h"
#include "graphs/flat_drawing.h"
#include "graphs/over_scale.h"

namespace tessaplot::graphs {

namespace {

scene::Cls2 scaledMarker(const Cls9& graph, const GraphContext& context) {
    const data::Scaling& scaling = context.scaling;
    const int mode = context.scene.SceneMode;
    scene::Cls2 marker;
    if (mode == scene::mode2D) {
        marker.x = overScale(graph.PointY, scaling.ScaleX);
        marker.y = overScale(graph.PointZ, scaling.ScaleY);
        marker.Symbol = 1;
    } else {
        marker.x = overScale(graph.PointX, scaling.ScaleY);
        marker.y = overScale(graph.PointY, scaling.ScaleZ);
    }
    if (mode == scene::mode4D || mode == scene::mode3D) marker.z = overScale(graph.PointZ, scaling.ScaleX);
    return marker;
}

/// Brings a point given in angles to its place. Only the irregular kinds enter points so.
void unrollAngles(scene::Cls2& marker, data::DataKind kind) {
    if (kind == data::DataKind::IrregularSpherical) {
        const double a = base::degreesToRadians(marker.x);
        const double b = base::degreesToRadians(marker.y);
        const double r = marker.z;
        marker.x = std::cos(b) * r * std::sin(a);
        marker.y = std::cos(b) * r * std::cos(a);
        marker.z = std::sin(b) * r;
    } else if (kind == data::DataKind::IrregularCylindrical) {
        const double a = base::degreesToRadians(marker.x);
        const double b = marker.y;
        marker.x = std::sin(a) * b;
        marker.y = std::cos(a) * b;
    }
}

void endFlatDrawing(gl::DisplayList& list) {
    list.glEnable(GL_LIGHTING);
    endSmoothLines(list);
}

}  // namespace

void emitPoint(gl::DisplayList& list, const Cls9& graph, const GraphContext& context) {
    const bool flat = context.scene.SceneMode == scene::mode2D;
    if (flat) beginFlatDrawing(list);
    scene::Cls2 marker = scaledMarker(graph, context);
    unrollAngles(marker, context.kind);
    marker.Color = graph.PointColor;
    marker.size = graph.PointSize;
    marker.Draw(list, context.scene);
    if (flat) endFlatDrawing(list);
}

}  // namespace tessaplot::graphs

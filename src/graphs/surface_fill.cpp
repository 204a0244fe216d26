#include "graphs/surface_fill.h"

namespace tessaplot::graphs {

SurfaceFill::SurfaceFill(Cls9& graph)
    : graph_(graph),
      first_(ColorToRGB(graph.FirstColor)),
      second_(ColorToRGB(graph.SecondColor)),
      x_(graph.MinX, graph.MaxX),
      y_(graph.MinY, graph.MaxY),
      z_(graph.MinZ, graph.MaxZ),
      value_(graph.MinC, graph.MaxC) {
    if (graph.FillStyle == fill_style::colorMap) loadNamedRamp(graph);
}

void SurfaceFill::take(double coordinate, const Span& span) {
    color_ = gradientColor(coordinate, span.lower, span.extent, first_, second_);
}

const Rgb& SurfaceFill::surfaceColor(const Node& node, double value) {
    switch (graph_.FillStyle) {
        case fill_style::alongY:
            take(node.x, y_);
            break;
        case fill_style::alongX:
            take(node.z, x_);
            break;
        case fill_style::single:
            color_ = second_;
            break;
        default:
            return overlayColor(node, value);
    }
    return color_;
}

const Rgb& SurfaceFill::overlayColor(const Node& node, double value) {
    if (graph_.FillStyle == fill_style::alongZ) take(node.y, z_);
    if (graph_.FillStyle == fill_style::colorMap) rampColor(graph_, value, value_.lower, value_.extent, color_);
    return color_;
}

void emitShadeModel(gl::DisplayList& list, int wanted) {
    if (wanted == smoothness::flat) list.glShadeModel(GL_FLAT);
    if (wanted == smoothness::smooth || wanted == smoothness::smoothest) list.glShadeModel(GL_SMOOTH);
}

}  // namespace tessaplot::graphs

#include <algorithm>
#include <array>

#include "base/number_text.h"
#include "graphs/graph.h"

namespace tessaplot::graphs {

namespace {

struct KindLabel {
    int type;
    std::string_view label;
};

constexpr std::array<KindLabel, 12> kindLabels{{
    {graph_type::surface, "3D Surface Model"},
    {graph_type::colorMap, "Color Map  "},
    {graph_type::contour, "Contour Plot"},
    {graph_type::vector, "Vector Plot"},
    {graph_type::contour3D, "3D Contour Plot"},
    {graph_type::vertexModel, "3D Vertex Model"},
    {graph_type::gridModel, "3D Grid Model"},
    {graph_type::delaunay, "Delaunay Triangles"},
    {graph_type::scatter4D, "4D Scatter "},
    {graph_type::vector4D, "4D Vector "},
    {graph_type::slice4D, "4D Slice "},
    {graph_type::isoSurface, "4D IsoSurface "},
}};

std::string pointLabel(const Cls9& graph, int sceneMode) {
    const std::string x = base::generalText(graph.PointX);
    const std::string y = base::generalText(graph.PointY);
    const std::string z = base::generalText(graph.PointZ);
    if (sceneMode == scene::mode2D) return "Point  x=" + y + ", y=" + z;
    if (sceneMode == scene::mode3D || sceneMode == scene::mode4D) return "Point  x=" + z + ", y=" + x + ", z=" + y;
    return {};
}

}  // namespace

std::string listLabel(const Cls9& graph, int sceneMode) {
    if (graph.GraphType == graph_type::point) return pointLabel(graph, sceneMode);
    const auto found = std::ranges::find(kindLabels, graph.GraphType, &KindLabel::type);
    return found == kindLabels.end() ? std::string() : std::string(found->label);
}

}  // namespace tessaplot::graphs

#include "graphs/color_fill.h"
#include "graphs/make_room.h"
#include "graphs/mesh_cell.h"
#include "graphs/surface_fill.h"

namespace tessaplot::graphs {

namespace {

/// The corner colours of a colour map. The colour runs on from corner to corner, black before the first: a fill style
/// of no meaning here keeps it, and a height outside the ramp repeats it, dimmed.
class MapFill {
 public:
    explicit MapFill(Cls9& graph)
        : graph_(graph),
          extent_(nonZeroSpan(graph.MaxZ - graph.MinZ)),
          lowest_(ColorToRGB(graph.ColorMapcolor1)),
          highest_(ColorToRGB(graph.ColorMapcolor2)) {
        if (graph.FillStyle == fill_style::colorMap) loadNamedRamp(graph);
    }

    const Rgb& colorAt(double height) {
        if (graph_.FillStyle == fill_style::colorMap) rampColor(graph_, height, graph_.MinZ, extent_, color_);
        if (graph_.FillStyle == fill_style::alongZ)
            color_ = gradientColor(height, graph_.MinZ, extent_, highest_, lowest_);
        return color_;
    }

 private:
    const Cls9& graph_;
    double extent_;
    Rgb lowest_;
    Rgb highest_;
    Rgb color_;
};

/// Emits the cells of a colour map, all at the lowest height.
class MapCells {
 public:
    MapCells(gl::DisplayList& list, Cls9& graph, const scene::SceneState& scene, const NodeTable& nodes)
        : list_(list), scene_(scene), nodes_(nodes), height_(graph.MinZ), fill_(graph) {}

    void emitCell(int i, int j) {
        const auto corners = cornersOf(i, j);
        // The colours run on over holes too.
        std::array<Rgb, 4> colors;
        std::ranges::transform(corners, colors.begin(),
                               [this](const Place& at) { return fill_.colorAt(nodes_(at.i, at.j).y); });
        if (isHole(nodes_, corners)) return;
        list_.glBegin(GL_QUADS);
        for (std::size_t k = 0; k < corners.size(); ++k)
            emitCorner(nodes_(corners[k].i, corners[k].j), colors[k]);
        list_.glEnd();
    }

 private:
    void emitCorner(const Node& node, const Rgb& color) {
        list_.glNormal3d(0, 0, 0);
        emitColor(list_, color);
        emitPlan(list_, scene_, {node.z, node.x}, height_);
    }

    gl::DisplayList& list_;
    const scene::SceneState& scene_;
    const NodeTable& nodes_;
    double height_;
    MapFill fill_;
};

}  // namespace

void emitColorMap(gl::DisplayList& list, Cls9& graph, const GraphContext& context, const NodeTable& nodes) {
    makeRoom(list, 14 * cellCount(graph), 37 * cellCount(graph));
    list.glDisable(GL_LIGHTING);
    MapCells map(list, graph, context.scene, nodes);
    for (int i = 0; i < graph.StepU; ++i)
        for (int j = 0; j < graph.StepV; ++j)
            map.emitCell(i, j);
    list.glEnable(GL_LIGHTING);
}

}  // namespace tessaplot::graphs

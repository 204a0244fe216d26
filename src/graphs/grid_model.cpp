#include "graphs/color_fill.h"
#include "graphs/emitters.h"
#include "graphs/make_room.h"

namespace tessaplot::graphs {

namespace {

/// Emits lines between nodes, each group in a glBegin and glEnd of its own.
class GridLines {
 public:
    GridLines(gl::DisplayList& list, const Cls9& graph, const GraphContext& context, const NodeTable& nodes)
        : list_(list), scene_(context.scene), nodes_(nodes), color_(ColorToRGB(graph.GridColor)) {}

    void begin() {
        list_.glBegin(GL_LINES);
        emitColor(list_, color_);
    }
    void vertex(int i, int j) {
        const Node& node = nodes_(i, j);
        list_.glVertex3d(node.x - scene_.SceneCenterX, node.y - scene_.SceneCenterY, node.z - scene_.SceneCenterZ);
    }
    void end() { list_.glEnd(); }

 private:
    gl::DisplayList& list_;
    const scene::SceneState& scene_;
    const NodeTable& nodes_;
    Rgb color_;
};

void makeRoomForGrid(gl::DisplayList& list, std::size_t cellsU, std::size_t cellsV) {
    const std::size_t cells = cellsU * cellsV;
    const std::size_t edges = cellsU + cellsV;
    makeRoom(list, 7 * cells + 5 * edges, 16 * cells + 10 * edges);
}

}  // namespace

void emitGridModel(gl::DisplayList& list, const Cls9& graph, const GraphContext& context, const NodeTable& nodes) {
    makeRoomForGrid(list, static_cast<std::size_t>(graph.StepU), static_cast<std::size_t>(graph.StepV));
    list.glLineWidth(static_cast<float>(graph.GridWidth));
    GridLines lines(list, graph, context, nodes);
    for (int i = 0; i < graph.StepU; ++i) {
        for (int j = 0; j < graph.StepV; ++j) {
            lines.begin();
            lines.vertex(i, j);
            lines.vertex(i, j + 1);
            lines.vertex(i, j);
            lines.vertex(i + 1, j);
            lines.end();
        }
    }
    for (int j = 0; j < graph.StepV; ++j) {
        lines.begin();
        lines.vertex(graph.StepU, j);
        lines.vertex(graph.StepU, j + 1);
        lines.end();
    }
    for (int i = 0; i < graph.StepU; ++i) {
        lines.begin();
        lines.vertex(i, graph.StepV);
        lines.vertex(i + 1, graph.StepV);
        lines.end();
    }
}

}  // namespace tessaplot::graphs

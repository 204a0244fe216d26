#include "graphs/emitters.h"
#include "graphs/make_room.h"

namespace tessaplot::graphs {

void emitVertexModel(gl::DisplayList& list, const Cls9& graph, const GraphContext& context, const NodeTable& nodes) {
    const std::size_t markers =
        (static_cast<std::size_t>(graph.StepU) + 1) * (static_cast<std::size_t>(graph.StepV) + 1);
    if (!scene::isFlat(context.scene.SceneMode)) makeRoom(list, 7 * markers, 9 * markers);
    scene::Cls2 marker;
    marker.size = graph.VertSize;
    marker.Color = graph.VertColor;
    for (int i = 0; i <= graph.StepU; ++i) {
        for (int j = 0; j <= graph.StepV; ++j) {
            const Node& node = nodes(i, j);
            marker.x = node.x;
            marker.y = node.y;
            marker.z = node.z;
            marker.Draw(list, context.scene);
        }
    }
}

}  // namespace tessaplot::graphs

#include "graphs/irregular_marks.h"
#include "graphs/make_room.h"
#include "graphs/volume_grid.h"

namespace tessaplot::graphs {

void emitScatter4D(gl::DisplayList& list, const Cls9& graph, const GraphContext& context) {
    const VolumeGrid volume(context.data, graph);
    volume.requireMarkable();
    makeRoom(list, 7 * volume.nodeCount(), 9 * volume.nodeCount());
    scene::Cls2 marker;
    marker.Color = graph.Scat4DColor;
    for (int i = 0; i <= graph.StepU; ++i) {
        for (int j = 0; j <= graph.StepV; ++j) {
            for (int k = 0; k <= graph.StepH; ++k) {
                const VolumeNode node = volume({i, j, k});
                if (isMissing(node)) continue;
                marker.size = overLargestValue(node.value, context.data) * context.scaling.ScaleV * 5.0;
                marker.x = node.at.x;
                marker.y = node.at.y;
                marker.z = node.at.z;
                marker.Draw(list, context.scene);
            }
        }
    }
    emitIrregularMarks(list, graph, context);
}

}  // namespace tessaplot::graphs

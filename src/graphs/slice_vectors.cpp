#include "graphs/color_fill.h"
#include "graphs/gradient_arrows.h"
#include "graphs/make_room.h"
#include "graphs/slice_graph.h"
#include "graphs/smooth_lines.h"

namespace tessaplot::graphs {

namespace {

/// Slices across Z have black vectors whatever colour is set.
Rgb vectorColor(const SliceDrawing& drawing) {
    return drawing.direction.across == VolumeAxis::Z ? Rgb{} : ColorToRGB(drawing.slice.VectColor);
}

}  // namespace

void emitSliceVectors(gl::DisplayList& list, const SliceDrawing& drawing) {
    const SlicePlane& plane = drawing.plane;
    const auto valueAt = [&](int u, int v) { return plane(u, v).value; };
    const auto vertex = [&](const Node& at) { emitUpright(list, drawing.context.scene, at.x, at.y, at.z); };
    makeRoom(list, 4 * plane.nodeCount(), 7 * plane.nodeCount());
    beginSmoothLines(list, drawing.graph);
    emitFloatColor(list, vectorColor(drawing));
    for (int u = 1; u + 1 < plane.countU(); ++u) {
        for (int v = 1; v + 1 < plane.countV(); ++v) {
            Gradient gradient;
            if (!gradientAt(valueAt, u, v, gradient)) continue;
            const Node& from = plane(u, v).at;
            Node tip = from;
            along(tip, drawing.direction.first) += gradient.alongU;
            along(tip, drawing.direction.second) += gradient.alongV;
            list.glBegin(GL_LINES);
            vertex(from);
            vertex(tip);
            list.glEnd();
        }
    }
    endSmoothLines(list);
}

}  // namespace tessaplot::graphs

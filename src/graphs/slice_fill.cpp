#include <algorithm>

#include "graphs/color_fill.h"
#include "graphs/make_room.h"
#include "graphs/slice_graph.h"
#include "graphs/surface_fill.h"

namespace tessaplot::graphs {

namespace {

/// Emits the cells of a slice.
class SliceCells {
 public:
    SliceCells(gl::DisplayList& list, const SliceDrawing& drawing, const SliceFill& fill)
        : list_(list), drawing_(drawing), plane_(drawing.plane), colors_(plane_.countU(), plane_.countV()) {
        for (int u = 0; u < plane_.countU(); ++u)
            for (int v = 0; v < plane_.countV(); ++v)
                if (!isHole(u, v)) colors_(u, v) = fill.colorOf(plane_(u, v).value);
    }

    void emit() {
        for (int u = 0; u + 1 < plane_.countU(); ++u)
            for (int v = 0; v + 1 < plane_.countV(); ++v)
                emitCell(cornersOf(u, v));
    }

 private:
    bool isHole(int u, int v) const { return isMissing(plane_(u, v).value); }

    void emitCell(const std::array<Place, 4>& corners) {
        if (std::ranges::any_of(corners, [this](const Place& at) { return isHole(at.i, at.j); })) return;
        const auto& normal = drawing_.direction.normal;
        list_.glBegin(GL_QUADS);
        list_.glNormal3d(normal[0], normal[1], normal[2]);
        for (const Place& corner : corners) {
            const Rgb& color = colors_(corner.i, corner.j);
            const Node& at = plane_(corner.i, corner.j).at;
            emitColor(list_, color);
            emitUpright(list_, drawing_.context.scene, at.x, at.y, at.z);
        }
        list_.glEnd();
    }

    gl::DisplayList& list_;
    const SliceDrawing& drawing_;
    const SlicePlane& plane_;
    GridTable<Rgb> colors_;
};

/// Moves what is filled a little back, so that lines in its own plane show on it unbroken.
void beginBehindLines(gl::DisplayList& list) {
    list.glEnable(GL_POLYGON_OFFSET_FILL);
    list.glPolygonOffset(1, 1);
}

}  // namespace

SliceFill::SliceFill(Cls9& graph)
    : graph_(graph), first_(ColorToRGB(graph.FirstColor)), second_(ColorToRGB(graph.SecondColor)) {
    if (graph.FillStyle == fill_style::colorMap) loadNamedRamp(graph);
}

Rgb SliceFill::colorOf(double value) const {
    // A value between two layers may pass both by a rounding, and a ramp ends exactly at its ends.
    const double within = std::clamp(value, graph_.MInv, std::max(graph_.MInv, graph_.MaxV));
    const double span = nonZeroSpan(graph_.MaxV - graph_.MInv);
    Rgb color;
    switch (graph_.FillStyle) {
        case fill_style::alongY:
        case fill_style::alongX:
        case fill_style::alongZ:
            return gradientColor(within, graph_.MInv, span, first_, second_);
        case fill_style::single:
            return second_;
        case fill_style::colorMap:
            rampColor(graph_, within, graph_.MInv, span, color);
            return color;
        default:
            return color;
    }
}

void emitSliceFill(gl::DisplayList& list, const SliceDrawing& drawing, const SliceFill& fill) {
    makeRoom(list, 11 * drawing.plane.nodeCount(), 28 * drawing.plane.nodeCount());
    list.glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    list.glShadeModel(GL_SMOOTH);
    const bool bearsLines = drawing.slice.ShowCont || drawing.slice.ShowVect;
    if (bearsLines) beginBehindLines(list);
    SliceCells(list, drawing, fill).emit();
    if (bearsLines) list.glDisable(GL_POLYGON_OFFSET_FILL);
    list.glEnable(GL_LIGHTING);
}

}  // namespace tessaplot::graphs

#include "graphs/slice_graph.h"

#include "base/failure.h"
#include "graphs/irregular_marks.h"
#include "graphs/over_scale.h"
#include "graphs/surface_fill.h"

namespace tessaplot::graphs {

namespace {

/// The layers across an axis over the range that the graph found.
LayerRow layersAcross(const VolumeGrid& volume, VolumeAxis axis, double minimum, double maximum) {
    const int last = along(volume.last(), axis);
    const double spacing = (maximum - minimum) / last;
    VolumePlace end{};
    along(end, axis) = last;
    const Node first = volume({}).at;
    const Node other = volume(end).at;
    const bool runsDown = along(first, axis) > along(other, axis);
    return runsDown ? LayerRow{maximum, -spacing, last} : LayerRow{minimum, spacing, last};
}

/// Draws the slices of a graph, one after the other.
class Slices {
 public:
    Slices(gl::DisplayList& list, Cls9& graph, const GraphContext& context)
        : list_(list),
          graph_(graph),
          context_(context),
          volume_(context.data, graph),
          fill_(graph),
          rows_{layersAcross(volume_, VolumeAxis::X, graph.MinX, graph.MaxX),
                layersAcross(volume_, VolumeAxis::Y, graph.MinY, graph.MaxY),
                layersAcross(volume_, VolumeAxis::Z, graph.MinZ, graph.MaxZ)},
          scales_{context.scaling.ScaleX, context.scaling.ScaleY, context.scaling.ScaleZ} {}

    void emit(const SliceSet& slices, const SliceDirection& direction) {
        for (int n = 1; n <= slices.Num; ++n)
            emitSlice(slices[n], direction, "slice " + std::to_string(n) + " across " + std::string(1, direction.name));
    }

 private:
    const LayerRow& row(VolumeAxis axis) const { return rows_[static_cast<std::size_t>(axis)]; }

    void emitSlice(const SliceSet::Slice& slice, const SliceDirection& direction, const std::string& name) {
        const SliceLimits limits = limitsOf(slice, name, row(direction.first).last, row(direction.second).last);
        const double position = overScale(slice.Position, scales_[static_cast<std::size_t>(direction.across)]);
        findLayer(row(direction.across), position, layer_);
        requireLayer(direction, name);
        const SlicePlane plane(volume_, direction, position, layer_, limits);
        const SliceDrawing drawing{graph_, context_, direction, slice, plane};
        if (slice.ShowColor) emitSliceFill(list_, drawing, fill_);
        if (slice.ShowCont) emitContours(drawing, position, limits);
        if (slice.ShowVect) emitSliceVectors(list_, drawing);
    }

    /// The layer may be one that a slice across another axis has left.
    void requireLayer(const SliceDirection& direction, const std::string& name) const {
        const int last = row(direction.across).last;
        if (layer_.lower > last || layer_.upper > last)
            throw base::Failure(base::FailureCode::SubscriptOutOfRange,
                                "The position of " + name + " lies outside the grid, and the layer " +
                                    std::to_string(layer_.upper) + " of the slice before it does so too.");
    }

    void emitContours(const SliceDrawing& drawing, double position, const SliceLimits& limits) {
        const SlicePlane& plane = drawing.plane;
        if (plane.countU() < 1 || plane.countV() < 1) return;
        const LayerRow& first = row(drawing.direction.first);
        const LayerRow& second = row(drawing.direction.second);
        const ValueGrid grid{plane.countU(),
                             plane.countV(),
                             [&](int u, int v) { return plane(u, v).value; },
                             first.spacing,
                             second.spacing,
                             (limits.firstU - 1) * first.spacing + first.start,
                             (limits.firstV - 1) * second.spacing + second.start};
        const ContourStyle style{drawing.slice.ContLevels, fill_style::single, drawing.slice.ContColor,
                                 drawing.slice.ContColor, graph_.LineWidth};
        emitContourLines(list_, graph_, context_, grid, position, style, drawing.direction.contourPass);
    }

    gl::DisplayList& list_;
    Cls9& graph_;
    const GraphContext& context_;
    VolumeGrid volume_;
    SliceFill fill_;
    std::array<LayerRow, 3> rows_;
    std::array<double, 3> scales_;
    SliceLayer layer_;  ///< Of the slice drawn last: a slice that finds no layer of its own takes it over.
};

}  // namespace

void emitSlices4D(gl::DisplayList& list, Cls9& graph, const GraphContext& context) {
    Slices slices(list, graph, context);
    slices.emit(graph.SlicesZ, acrossZ);
    slices.emit(graph.SlicesY, acrossY);
    slices.emit(graph.SlicesX, acrossX);
    emitIrregularMarks(list, graph, context);
}

}  // namespace tessaplot::graphs

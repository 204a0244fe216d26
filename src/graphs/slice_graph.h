#pragma once

#include "graphs/color_fill.h"
#include "graphs/slice_plane.h"

namespace tessaplot::graphs {

/// The colours of slices: by the value, over the range that the graph found last.
class SliceFill {
 public:
    /// Takes style and colours from the graph, which must outlive the fill; a colour map is loaded into it.
    explicit SliceFill(Cls9& graph);

    /// A gradient from `SecondColor` to `FirstColor`, `SecondColor` alone, or the colour map; black for a style of no
    /// meaning.
    Rgb colorOf(double value) const;

 private:
    const Cls9& graph_;
    Rgb first_;
    Rgb second_;
};

/// One slice and what its drawing needs.
struct SliceDrawing {
    const Cls9& graph;
    const GraphContext& context;
    const SliceDirection& direction;
    const SliceSet::Slice& slice;
    const SlicePlane& plane;
};

/// The cells of a slice in the colours of their values; cells with a node without data are left out.
void emitSliceFill(gl::DisplayList& list, const SliceDrawing& drawing, const SliceFill& fill);

/// The gradient of the value within the plane, as a line without a head at each inner node.
void emitSliceVectors(gl::DisplayList& list, const SliceDrawing& drawing);

}  // namespace tessaplot::graphs

#pragma once

#include <functional>

#include "base/color.h"
#include "geometry/contour.h"
#include "gl/display_list.h"
#include "graphs/graph.h"

namespace tessaplot::graphs {

/// How contour lines look. Of the numbers in `fill_style`, `colorMode` knows `single`, which gives every level
/// `firstColor`, `alongZ`, which runs from `firstColor` at the lowest level to `lastColor` at the highest, and
/// `colorMap`; any other sets no colour.
struct ContourStyle {
    double interval = 0;
    int colorMode = 0;
    base::PackedColor firstColor = 0;
    base::PackedColor lastColor = 0;
    int lineWidth = 0;
};

/// A grid of values over a plane: countU nodes along its first index, countV along its second.
struct ValueGrid {
    int countU = 0;
    int countV = 0;
    std::function<double(int, int)> valueAt;  ///< The value of node (i, j), both from 0.
    double spacingU = 1;
    double spacingV = 1;
    double offsetU = 0;  ///< The place one cell before node (0, 0), along the first index
    double offsetV = 0;  ///< and along the second.
};

/// The grid of a surface's nodes over the ranges that the graph found last; data that are listed downwards have
/// spacings below 0.
ValueGrid surfaceGrid(const Cls9& graph, const GraphContext& context, std::function<double(int, int)> valueAt);

/// Across which data axis the plane of flat contour lines stands in a 4D scene; scenes of other modes do not ask.
enum class ContourPass {
    None = 0,     ///< There are no lines.
    AcrossZ = 1,  ///< First index along data X, second along data Y.
    AcrossX = 2,  ///< First index along data Y, second along data Z.
    AcrossY = 3,  ///< First index along data X, second along data Z.
};

/// Emits the contour lines of a grid in the plane that stands at `height` along the third axis, unlit and smooth: in
/// plan order in a flat scene, upright in a 3D one, by `pass` in a 4D one, where the interval is in unscaled values.
/// Lines in 3D and 4D scenes are white whatever their level. Leaves the lighting on, smoothing and blending off.
/// Throws what `geometry::CContour::Contour` throws; DivisionByZero in a 4D scene before there are scales.
void emitContourLines(gl::DisplayList& list, Cls9& graph, const GraphContext& context, const ValueGrid& grid,
                      double height, const ContourStyle& style, ContourPass pass);

/// A place in data axes, in scene units.
struct DataPoint {
    double x = 0;
    double y = 0;
    double z = 0;
};

/// The same for lines on a surface, upright and in the colours of their levels. `surfaceAt(i, j)` is the height of node
/// (i, j), both from 0, and `place` tells where a point of `geometry::CContour::Contour3D` is.
void emitSurfaceContourLines(gl::DisplayList& list, Cls9& graph, const GraphContext& context, const ValueGrid& grid,
                             const std::function<double(int, int)>& surfaceAt, const ContourStyle& style,
                             const std::function<DataPoint(const geometry::SurfacePoint&)>& place);

}  // namespace tessaplot::graphs

#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "base/color.h"

namespace tessaplot::geometry {

/// The most nodes along a side of a grid of values.
inline constexpr int maxContourNodes = 500;
/// The most levels of one call: more lines than a screen has rows of pixels, several times over.
inline constexpr int maxContourLevels = 10000;
/// The most edges that all levels of one call may cross together, each of them about one segment: noise on the largest
/// grid at 20 levels stays below.
inline constexpr std::size_t maxContourCrossings = 5000000;

/// Values at the nodes of a regular grid and where the nodes lie.
///
/// Node (i, j), with i from 1 to `m` and j from 1 to `n`, has its value in z[(i - 1) * rowStride + j - 1] and lies at
/// A = `a` * j + `ox`, B = `b` * i + `oy`. So `ox` is where A begins less one spacing `a`, and `oy` where B begins less
/// one spacing `b`.
///
/// A value that is not `isUsable` (geometry/missing_node.h: the marker, not-a-number, infinite or nearly so) is no
/// value: no line touches an edge that ends there, and neither the range of the levels nor the nudge counts it.
struct ContourGrid {
    int m = 0;
    int n = 0;
    double a = 1;
    double b = 1;
    double ox = 0;
    double oy = 0;
    std::span<double> z;  ///< Altered by the nudge.
    std::size_t rowStride = maxContourNodes;
};

/// Channels from 0 to 1.
struct ContourColor {
    double r = 0;
    double g = 0;
    double b = 0;
    friend bool operator==(const ContourColor&, const ContourColor&) = default;
};

/// At which values lines run, and in what colour.
struct ContourOptions {
    /// The step between levels, which lie on its multiples. A caller whose scene scales its values divides by that
    /// scale first.
    double interval = 1;
    /// 4: `firstColour`; 3: from `firstColour` at the lowest level to `lastColour` at the highest; 5: `ColourFromMap`;
    /// any other: levels carry no colour.
    int colourMode = 4;
    base::PackedColor firstColour = 0;
    base::PackedColor lastColour = 0;
    /// The ramp of colour mode 5: gives `color` the colour of `level`, the ramp running from `lower` over `range`.
    /// `color` comes as the level before left it, at first black. Without a ramp levels carry no colour.
    std::function<void(double level, double lower, double range, ContourColor& color)> ColourFromMap;
};

/// A level and which segments are its own: those from `first` up to, not including, `end`.
struct ContourLevel {
    double value = 0;
    std::optional<ContourColor> color;
    std::size_t first = 0;
    std::size_t end = 0;
};

/// A place in the plane: A runs with the second index of the grid, B with the first; offsets are added already.
struct PlanePoint {
    double A = 0;
    double B = 0;
    friend bool operator==(const PlanePoint&, const PlanePoint&) = default;
};

/// A place on a surface: a place in the plane and the height there.
struct SurfacePoint {
    double A = 0;
    double B = 0;
    double h = 0;
    friend bool operator==(const SurfacePoint&, const SurfacePoint&) = default;
};

/// A piece of a contour line.
template <class Point>
struct ContourSegment {
    Point from;
    Point to;
    friend bool operator==(const ContourSegment&, const ContourSegment&) = default;
};

/// The lines of all levels, in the order in which they are to be drawn: levels rising, and within a level each segment
/// after the one that it continues.
template <class Point>
struct ContourLines {
    std::vector<ContourLevel> levels;
    std::vector<ContourSegment<Point>> segments;

    std::span<const ContourSegment<Point>> of(const ContourLevel& level) const {
        return std::span(segments).subspan(level.first, level.end - level.first);
    }
};

/// Follows the lines of equal value through a grid: each crossing of an edge is met once, and a line ends only where it
/// closes, at the border, or at a node without a value.
///
/// The levels begin at (floor(zmin / interval) + 1) * interval and come by repeated addition of the interval, up to and
/// including floor(zmax / interval) * interval, with zmin the least value, at most 1e10, and zmax the greatest, at
/// least -1e10. Before any line is followed, for each level in turn every node within 0.0001 of it is raised by 1e-5 in
/// the caller's grid. An edge is crossed if one end is strictly below the level and the other strictly above.
///
/// Of each level come first the lines that begin at a border (j rising along i = 1, i rising along j = 1, then the same
/// along i = m and j = n), then the closed ones, each from its crossing of an edge (i, j) to (i, j + 1) with the least
/// i and then j, towards rising i. A line that ends at a node without a value at both ends is listed with these, its
/// two ways from that crossing one after the other, or last of all if it crosses no such edge. At a saddle a line takes
/// the nearer side: of the two across its way the one with the lower index, then the other, then straight on.
///
/// Failures: SubscriptOutOfRange for a side of no node or of more than `maxContourNodes` and for values that do not
/// fill the grid; BadInput for an interval that is not a positive number, and for one that asks for more than
/// `maxContourLevels` levels or `maxContourCrossings` crossings; DivisionByZero for colour mode 3 with a single level.
class CContour {
 public:
    /// The lines in the plane of the grid.
    static ContourLines<PlanePoint> Contour(const ContourGrid& grid, const ContourOptions& options);

    /// The lines of the values in `grid`, laid on a surface: `surface` holds a height for each node, with the layout
    /// and the row stride of the values. No line touches an edge that ends at a height that is not `isUsable`.
    static ContourLines<SurfacePoint> Contour3D(const ContourGrid& grid, std::span<const double> surface,
                                                const ContourOptions& options);
};

}  // namespace tessaplot::geometry

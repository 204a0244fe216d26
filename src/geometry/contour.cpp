#include "geometry/contour.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <type_traits>

#include "base/failure.h"
#include "geometry/contour_colors.h"
#include "geometry/contour_crossings.h"
#include "geometry/contour_levels.h"
#include "geometry/missing_node.h"

namespace tessaplot::geometry {

namespace {

void requireNodes(const ContourGrid& grid, std::size_t values) {
    if (grid.m < 1 || grid.m > maxContourNodes) base::failSubscript("contour table H", grid.m, 1, maxContourNodes);
    if (grid.n < 1 || grid.n > maxContourNodes) base::failSubscript("contour table V", grid.n, 1, maxContourNodes);
    const auto n = static_cast<std::size_t>(grid.n);
    const std::size_t last = static_cast<std::size_t>(grid.m - 1) * grid.rowStride + n - 1;
    if (grid.rowStride < n || values <= last)
        base::failSubscript("contour values", static_cast<std::int64_t>(last), 0,
                            static_cast<std::int64_t>(values) - 1);
}

/// The sides of a cell by the index along which they run, the lower one of a pair first.
enum Side : std::uint8_t { nearFirst, farFirst, nearSecond, farSecond, noSide };

/// The side by which a line leaves a cell that it entered by `entry`, for each set of sides that are crossed and not
/// used (a bit each): the two sides across its way before the one opposite.
constexpr auto exits = [] {
    std::array<std::array<Side, 16>, 4> table{};
    for (unsigned entry = 0; entry < 4; ++entry) {
        const unsigned across = entry < 2 ? 2 : 0;
        const unsigned opposite = entry ^ 1U;
        for (unsigned open = 0; open < 16; ++open) {
            Side& exit = table[entry][open];
            exit = noSide;
            for (const unsigned side : {opposite, across + 1, across})
                if ((open >> side & 1U) != 0) exit = static_cast<Side>(side);
        }
    }
    return table;
}();

/// How the sides lie about cell (i, j), whose corner of the lowest indices is node (i, j): the node where the edge of a
/// side begins and the cell beyond that side, both as distances from the number of that node.
struct SideStep {
    std::uint32_t node;
    std::uint32_t cell;
    Side entry;  ///< What the side is to the cell beyond.
};
constexpr std::array<SideStep, 4> sideSteps = {{{0, 0U - 1U, farFirst},
                                                {1, 1, nearFirst},
                                                {0, 0U - GridEdge::row, farSecond},
                                                {GridEdge::row, GridEdge::row, nearSecond}}};

constexpr bool runsAlongSecond(Side side) {
    return side >= nearSecond;
}

/// Which edges a level still has to use, and where lines end: a mark for each node, and the cell after it.
class OpenCrossings {
 public:
    OpenCrossings(int m, int n) : marks_((static_cast<std::size_t>(m) + 1) * GridEdge::row + 1) {
        const auto lastRow = static_cast<std::uint32_t>(m);
        const auto lastPlace = static_cast<std::uint32_t>(n);
        for (std::uint32_t j = 0; j <= lastPlace; ++j)
            marks_[j] = marks_[lastRow * GridEdge::row + j] = outside;
        for (std::uint32_t i = 0; i <= lastRow; ++i)
            marks_[i * GridEdge::row] = marks_[i * GridEdge::row + lastPlace] = outside;
    }

    void open(GridEdge edge) { marks_[edge.node()] |= markOf(edge); }
    void use(GridEdge edge) { marks_[edge.node()] &= static_cast<std::uint8_t>(~markOf(edge)); }
    bool isOpen(GridEdge edge) const { return (marks_[edge.node()] & markOf(edge)) != 0; }

    bool endsLine(std::uint32_t cell) const { return (marks_[cell] & (outside | closing)) != 0; }
    bool closesLine(std::uint32_t cell) const { return (marks_[cell] & closing) != 0; }
    void setClosing(std::uint32_t cell) { marks_[cell] |= closing; }
    void clearClosing(std::uint32_t cell) { marks_[cell] &= static_cast<std::uint8_t>(~closing); }

    /// A bit for each side of the cell that is crossed and not used.
    unsigned sidesOf(std::uint32_t cell) const {
        const unsigned here = marks_[cell];
        const unsigned afterFirst = marks_[cell + 1];
        const unsigned afterSecond = marks_[cell + GridEdge::row];
        return (here & 1U) | (afterFirst & 1U) << 1U | (here & 2U) << 1U | (afterSecond & 2U) << 2U;
    }

 private:
    static constexpr std::uint8_t outside = 4;
    static constexpr std::uint8_t closing = 8;
    static std::uint8_t markOf(GridEdge edge) { return edge.alongSecond() ? 2 : 1; }

    std::vector<std::uint8_t> marks_;
};

/// Follows the lines of one level after the other.
template <class Point>
class Tracer {
 public:
    /// `surface` is for lines on a surface only.
    Tracer(const ContourGrid& grid, std::span<const double> surface, std::vector<ContourSegment<Point>>& segments)
        : grid_(grid), surface_(surface), segments_(segments), open_(grid.m, grid.n) {}

    /// `crossed`: the edges that the level crosses, in number order.
    void traceLevel(double level, std::span<const GridEdge> crossed);

 private:
    void traceOpenLines(std::span<const GridEdge> crossed);
    void traceClosedLines(std::span<const GridEdge> crossed);
    void traceBothWays(GridEdge start);
    bool TraceLine(GridEdge start, Side entry);
    Side NextCrossing(std::uint32_t cell, Side entry) const { return exits[entry][open_.sidesOf(cell)]; }
    Point CrossingPoint(GridEdge edge) const;

    /// The cell that has the edge as its side `entry`.
    static std::uint32_t cellBeyond(GridEdge edge, Side entry) { return edge.node() - sideSteps[entry].node; }

    const ContourGrid& grid_;
    std::span<const double> surface_;
    std::vector<ContourSegment<Point>>& segments_;
    OpenCrossings open_;
    double level_ = 0;
    std::vector<GridEdge> nearBorder_;  ///< The crossed edges along j = 1.
    std::vector<GridEdge> farBorder_;   ///< The crossed edges along j = n.
};

template <class Point>
void Tracer<Point>::traceLevel(double level, std::span<const GridEdge> crossed) {
    level_ = level;
    nearBorder_.clear();
    farBorder_.clear();
    for (const GridEdge edge : crossed) {
        open_.open(edge);
        if (edge.alongSecond()) continue;
        if (edge.j() == 1) nearBorder_.push_back(edge);
        if (edge.j() == static_cast<std::uint32_t>(grid_.n)) farBorder_.push_back(edge);
    }
    traceOpenLines(crossed);
    traceClosedLines(crossed);
}

template <class Point>
void Tracer<Point>::traceOpenLines(std::span<const GridEdge> crossed) {
    const auto traceAll = [&](std::span<const GridEdge> border, bool alongSecond, Side entry) {
        for (const GridEdge edge : border)
            if (edge.alongSecond() == alongSecond && open_.isOpen(edge)) TraceLine(edge, entry);
    };
    const auto lastRow = static_cast<std::uint32_t>(grid_.m);
    std::size_t firstRowEnd = 0;
    while (firstRowEnd < crossed.size() && crossed[firstRowEnd].i() == 1)
        ++firstRowEnd;
    std::size_t lastRowBegin = crossed.size();
    while (lastRowBegin > 0 && crossed[lastRowBegin - 1].i() == lastRow)
        --lastRowBegin;
    traceAll(crossed.first(firstRowEnd), true, nearSecond);
    traceAll(nearBorder_, false, nearFirst);
    traceAll(crossed.subspan(lastRowBegin), true, farSecond);
    traceAll(farBorder_, false, farFirst);
}

template <class Point>
void Tracer<Point>::traceClosedLines(std::span<const GridEdge> crossed) {
    for (const bool alongSecond : {true, false})
        for (const GridEdge edge : crossed)
            if (edge.alongSecond() == alongSecond && open_.isOpen(edge)) traceBothWays(edge);
}

/// A closed line comes back by the cell behind its start, which then has no other way out: what lies before the start
/// in number order is used. A line that a node without a value ends goes on from the start the other way.
template <class Point>
void Tracer<Point>::traceBothWays(GridEdge start) {
    const Side back = start.alongSecond() ? farSecond : farFirst;
    const std::uint32_t behind = cellBeyond(start, back);
    open_.setClosing(behind);
    const bool closed = TraceLine(start, start.alongSecond() ? nearSecond : nearFirst);
    open_.clearClosing(behind);
    if (!closed) TraceLine(start, back);
}

/// Follows a line from `start` into the cell that has it as its side `entry`, to the border, to where it closes (true)
/// or to a cell without a way out.
template <class Point>
bool Tracer<Point>::TraceLine(GridEdge start, Side entry) {
    open_.use(start);
    const Point startPoint = CrossingPoint(start);
    Point previous = startPoint;
    std::uint32_t cell = cellBeyond(start, entry);
    while (!open_.endsLine(cell)) {
        const Side exit = NextCrossing(cell, entry);
        if (exit == noSide) return false;
        const SideStep& step = sideSteps[exit];
        const GridEdge edge(cell + step.node, runsAlongSecond(exit));
        open_.use(edge);
        const Point next = CrossingPoint(edge);
        segments_.push_back({previous, next});
        previous = next;
        cell += step.cell;
        entry = step.entry;
    }
    if (!open_.closesLine(cell)) return false;
    segments_.push_back({previous, startPoint});
    return true;
}

template <class Point>
Point Tracer<Point>::CrossingPoint(GridEdge edge) const {
    const std::size_t from = (edge.i() - 1) * grid_.rowStride + edge.j() - 1;
    const std::size_t to = from + (edge.alongSecond() ? 1 : grid_.rowStride);
    const double f = edge.alongSecond() ? 1 : 0;
    const double fraction = (level_ - grid_.z[from]) / (grid_.z[to] - grid_.z[from]);
    const double A = grid_.a * (edge.j() + f * fraction);
    const double B = grid_.b * (edge.i() + (1 - f) * fraction);
    if constexpr (std::is_same_v<Point, SurfacePoint>)
        return {A + grid_.ox, B + grid_.oy, surface_[from] + (surface_[to] - surface_[from]) * fraction};
    else
        return {A + grid_.ox, B + grid_.oy};
}

/// Nudges the values and finds where they stand among the levels; nodes without a height stand nowhere.
PlaceTable placesOf(const ContourGrid& grid, std::span<const double> surface, const LevelScale& scale) {
    PlaceTable places(grid.m, grid.n);
    const auto n = static_cast<std::size_t>(grid.n);
    for (int i = 1; i <= grid.m; ++i) {
        const std::size_t start = static_cast<std::size_t>(i - 1) * grid.rowStride;
        const std::span<LevelPlace> row = places.row(i);
        scale.nudge(grid.z.subspan(start, n), row);
        if (surface.empty()) continue;
        for (std::size_t j = 0; j < n; ++j)
            if (!isUsable(surface[start + j])) row[j] = noPlace;
    }
    return places;
}

template <class Point>
ContourLines<Point> linesOf(const ContourGrid& grid, std::span<const double> surface, const ContourOptions& options) {
    const LevelScale scale(grid, options.interval);
    const LevelCrossings crossings(placesOf(grid, surface, scale), scale.levels().size());
    ContourLines<Point> lines;
    lines.levels.reserve(scale.levels().size());
    lines.segments.reserve(crossings.total());
    LevelColors colors(options, scale);
    Tracer<Point> tracer(grid, surface, lines.segments);
    for (std::size_t k = 0; k < scale.levels().size(); ++k) {
        const double level = scale.levels()[k];
        lines.levels.push_back({level, colors.next(level), lines.segments.size(), 0});
        tracer.traceLevel(level, crossings.at(k));
        lines.levels.back().end = lines.segments.size();
    }
    return lines;
}

}  // namespace

ContourLines<PlanePoint> CContour::Contour(const ContourGrid& grid, const ContourOptions& options) {
    requireNodes(grid, grid.z.size());
    return linesOf<PlanePoint>(grid, {}, options);
}

ContourLines<SurfacePoint> CContour::Contour3D(const ContourGrid& grid, std::span<const double> surface,
                                               const ContourOptions& options) {
    requireNodes(grid, std::min(grid.z.size(), surface.size()));
    return linesOf<SurfacePoint>(grid, surface, options);
}

}  // namespace tessaplot::geometry

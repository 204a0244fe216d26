#include "geometry/delaunay.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/failure.h"
#include "base/number_text.h"
#include "geometry/circle_index.h"
#include "geometry/circumcircle.h"
#include "geometry/edge_cancellation.h"

namespace tessaplot::geometry {

namespace {

using Columns = std::span<double>;

double& at(Columns column, std::int64_t index) {
    return column[static_cast<std::size_t>(index)];
}

void checkColumn(const char* name, std::span<const double> column, std::int64_t n) {
    const std::int64_t last = static_cast<std::int64_t>(column.size()) - 1;
    if (n + 1 < 0) base::failSubscript(name, n + 1, 0, last);
    if (n + 3 > last) base::failSubscript(name, n + 3, 0, last);
}

std::int64_t within32Bits(std::int64_t value) {
    if (value < std::numeric_limits<std::int32_t>::min() || value > std::numeric_limits<std::int32_t>::max())
        throw base::Failure(base::FailureCode::Overflow, "The points to triangulate lie too far apart or too far out.");
    return value;
}

[[noreturn]] void failTooMany() {
    throw base::Failure(base::FailureCode::SubscriptOutOfRange,
                        "Subscript out of range: TriangleList holds at most " + std::to_string(maxTriangles) +
                            " triangles, about " + std::to_string(maxTriangles / 2) + " points.");
}

/// The limits of a column in whole numbers. Each value is compared with a limit already rounded, so that the limits may
/// miss a value by up to a half.
struct WholeRange {
    WholeRange(Columns column, std::int32_t n) : low(base::roundToInteger(at(column, 1))), high(low) {
        for (std::int32_t i = 2; i <= n; ++i) {
            const double value = at(column, i);
            if (value < static_cast<double>(low)) low = base::roundToInteger(value);
            if (value > static_cast<double>(high)) high = base::roundToInteger(value);
        }
    }

    std::int64_t width() const { return within32Bits(high - low); }
    std::int64_t middle() const { return base::roundToInteger(static_cast<double>(within32Bits(high + low)) / 2); }

    std::int64_t low;
    std::int64_t high;
};

/// Writes the corners n + 1 to n + 3 behind the points.
void writeEnclosingTriangle(std::int32_t n, Columns X, Columns Y) {
    const WholeRange rangeX(X, n);
    const WholeRange rangeY(Y, n);
    const std::int64_t size = std::max(rangeX.width(), rangeY.width());
    const std::int64_t twice = within32Bits(2 * size);
    const std::int64_t middleX = rangeX.middle();
    const std::int64_t middleY = rangeY.middle();
    const std::int64_t first = std::int64_t{n} + 1;
    at(X, first) = static_cast<double>(within32Bits(middleX - twice));
    at(Y, first) = static_cast<double>(within32Bits(middleY - size));
    at(X, first + 1) = static_cast<double>(middleX);
    at(Y, first + 1) = static_cast<double>(within32Bits(middleY + twice));
    at(X, first + 2) = static_cast<double>(within32Bits(middleX + twice));
    at(Y, first + 2) = static_cast<double>(within32Bits(middleY - size));
}

/// The box of the points themselves; one that is no number is in no box and in no circle.
PlaneBox boxOf(std::int32_t n, Columns X, Columns Y) {
    PlaneBox box = {at(X, 1), at(X, 1), at(Y, 1), at(Y, 1)};
    for (std::int32_t i = 2; i <= n; ++i) {
        box.minX = std::min(box.minX, at(X, i));
        box.maxX = std::max(box.maxX, at(X, i));
        box.minY = std::min(box.minY, at(Y, i));
        box.maxY = std::max(box.maxY, at(Y, i));
    }
    return box;
}

/// The triangles that stand while points come in.
///
/// The plain routine walks the list of triangles for each point: one whose circle holds the point is taken out, the
/// last one moves into its place and is looked at next. Here an index names the triangles to take out, and the walk
/// goes over these alone, in the same order. Each triangle stands in the list as a number into `corners_` that does
/// not change when it moves.
class GrowingTriangulation {
 public:
    GrowingTriangulation(std::int32_t n, Columns X, Columns Y) : n_(n), X_(X), Y_(Y), index_(boxOf(n, X, Y)) {
        append({n + 1, n + 2, n + 3});
    }

    void addPoint(std::int32_t point) {
        // Each test of a triangle without a circle is one report; none of them ever goes.
        coincidentTests_ += withoutCircle_;
        takeOutHit(point);
        edges_.forEachLeft([&](const Edge& edge) { append({edge.start, edge.end, point}); });
    }

    /// What is left without the corners of the enclosing triangle.
    Triangulation finish() {
        for (std::size_t place = 0; place < list_.size();) {
            if (touchesEnclosing(cornersOf(list_[place])))
                removeFromList(place);
            else
                ++place;
        }
        Triangulation result;
        result.coincidentTests = coincidentTests_;
        for (const std::int32_t id : list_)
            result.triangles.push_back(cornersOf(id));
        return result;
    }

 private:
    const Triangle& cornersOf(std::int32_t id) const { return corners_[static_cast<std::size_t>(id)]; }
    bool touchesEnclosing(const Triangle& triangle) const {
        return triangle.a > n_ || triangle.b > n_ || triangle.c > n_;
    }

    void append(const Triangle& triangle);
    void takeOutHit(std::int32_t point);
    void takeOut(std::int32_t id);
    void removeFromList(std::size_t place);

    std::int32_t n_;
    Columns X_;
    Columns Y_;
    std::vector<Triangle> corners_;
    std::vector<std::int32_t> places_;  ///< Of each triangle in `list_`, beside `corners_`.
    std::vector<char> hit_;             ///< Beside `corners_`: to be taken out for the present point.
    std::vector<std::int32_t> unused_;  ///< Places of `corners_` to be used again.
    std::vector<std::int32_t> list_;    ///< The triangles that stand, in the order of the routine.
    std::vector<std::int32_t> found_;   ///< The triangles that are hit, then their places in `list_`.
    CircleIndex index_;
    EdgeCancellation edges_;
    std::int64_t withoutCircle_ = 0;
    std::int64_t coincidentTests_ = 0;
};

void GrowingTriangulation::append(const Triangle& triangle) {
    if (list_.size() == maxTriangles) failTooMany();
    auto id = static_cast<std::int32_t>(corners_.size());
    if (unused_.empty()) {
        corners_.emplace_back();
        places_.emplace_back();
        hit_.emplace_back();
    } else {
        id = unused_.back();
        unused_.pop_back();
    }
    const auto index = static_cast<std::size_t>(id);
    corners_[index] = triangle;
    places_[index] = static_cast<std::int32_t>(list_.size());
    list_.push_back(id);

    const auto [a, b, c] = triangle;
    Circle circle;
    if (circumcircle(at(X_, a), at(Y_, a), at(X_, b), at(Y_, b), at(X_, c), at(Y_, c), circle))
        index_.insert(id, circle);
    else
        ++withoutCircle_;
}

/// Takes out the triangles whose circles hold the point and leaves in `edges_` the edges around the hole.
void GrowingTriangulation::takeOutHit(std::int32_t point) {
    edges_.clear();
    found_.clear();
    index_.find(at(X_, point), at(Y_, point), found_);
    for (std::int32_t& found : found_) {
        hit_[static_cast<std::size_t>(found)] = 1;
        found = places_[static_cast<std::size_t>(found)];
    }
    std::sort(found_.begin(), found_.end());
    for (const std::int32_t foundPlace : found_) {
        const auto place = static_cast<std::size_t>(foundPlace);
        while (place < list_.size() && hit_[static_cast<std::size_t>(list_[place])] != 0) {
            takeOut(list_[place]);
            removeFromList(place);
        }
    }
}

void GrowingTriangulation::takeOut(std::int32_t id) {
    const Triangle& triangle = cornersOf(id);
    edges_.add(triangle.a, triangle.b);
    edges_.add(triangle.b, triangle.c);
    edges_.add(triangle.c, triangle.a);
    hit_[static_cast<std::size_t>(id)] = 0;
    index_.remove(id);
    unused_.push_back(id);
}

/// The last triangle moves into the place.
void GrowingTriangulation::removeFromList(std::size_t place) {
    list_[place] = list_.back();
    places_[static_cast<std::size_t>(list_[place])] = static_cast<std::int32_t>(place);
    list_.pop_back();
}

}  // namespace

Triangulation Triangulate(std::int32_t n, std::span<double> X, std::span<double> Y) {
    checkColumn("X", X, n);
    checkColumn("Y", Y, n);
    writeEnclosingTriangle(n, X, Y);
    GrowingTriangulation triangulation(n, X, Y);
    for (std::int32_t point = 1; point <= n; ++point)
        triangulation.addPoint(point);
    return triangulation.finish();
}

bool InCircle(double xp, double yp, double x1, double y1, double x2, double y2, double x3, double y3, double& xc,
              double& yc, double& r, std::int64_t& coincidentTests) {
    Circle circle;
    if (!circumcircle(x1, y1, x2, y2, x3, y3, circle)) {
        ++coincidentTests;
        return false;
    }
    xc = circle.x;
    yc = circle.y;
    r = std::sqrt(circle.squaredRadius);
    return circle.holds(xp, yp);
}

}  // namespace tessaplot::geometry

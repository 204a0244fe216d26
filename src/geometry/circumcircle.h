#pragma once

namespace tessaplot::geometry {

/// A circle that remembers the square of its radius, which is what points are compared with.
struct Circle {
    double x = 0;
    double y = 0;
    double squaredRadius = 0;

    /// True for a point inside or on the circle.
    bool holds(double px, double py) const {
        const double dx = px - x;
        const double dy = py - y;
        return dx * dx + dy * dy <= squaredRadius;
    }
};

/// The circle through three points from the perpendicular bisectors of 1-2 and 2-3; the order of the points decides its
/// last bits. False, with `circle` as it was, for a triple that has none: both bisectors upright (neighbouring heights
/// closer than 1e-6) or parallel, or a circle beyond the range of numbers.
bool circumcircle(double x1, double y1, double x2, double y2, double x3, double y3, Circle& circle);

}  // namespace tessaplot::geometry

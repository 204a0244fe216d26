#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace tessaplot::geometry {

/// The most triangles that may stand at any moment, those of the enclosing triangle included.
inline constexpr std::int32_t maxTriangles = 10000;

/// A triangle of three point numbers, from 1, in the order that its edges gave them; either way round.
struct Triangle {
    std::int32_t a = 0;
    std::int32_t b = 0;
    std::int32_t c = 0;
    friend bool operator==(const Triangle&, const Triangle&) = default;
};

/// What a triangulation gives: the triangles in the order of the routine, the first of them at index 0 here.
struct Triangulation {
    std::vector<Triangle> triangles;
    /// How many tests met a triangle without a circumcircle; `coincidentMessage` tells a person.
    std::int64_t coincidentTests = 0;
};

/// Delaunay triangulation of points 1 to `n` by insertion, point after point, in one enclosing triangle (A. Bowyer,
/// "Computing Dirichlet tessellations", and D. F. Watson, "Computing the n-dimensional Delaunay tessellation",
/// The Computer Journal 24, 1981).
///
/// `X` and `Y` begin at index 0, which is not used; points have the indices 1 to `n`, and the corners of the enclosing
/// triangle are written to n + 1, n + 2 and n + 3, so that both need `n` + 4 elements. The enclosing triangle is only
/// about four times as wide as the points and its corners are whole numbers: the hull may stay partly unfilled, and
/// points that all lie within one unit have no triangles. A point on a circumcircle counts as inside it.
///
/// Throws SubscriptOutOfRange for vectors too short and for more than `maxTriangles` triangles at any moment (2 `n` + 1
/// stand before the enclosing ones go, so about 5000 points), Overflow for a corner beyond 32-bit integers.
Triangulation Triangulate(std::int32_t n, std::span<double> X, std::span<double> Y);

/// True if (xp, yp) lies inside or on the circle through the other three points; xc, yc and r are its centre and
/// radius. A triple without a circle (neighbouring heights closer than 1e-6, or points on one line) counts as
/// coincident: false, xc, yc and r stay as they were, and `coincidentTests` is raised by one.
bool InCircle(double xp, double yp, double x1, double y1, double x2, double y2, double x3, double y3, double& xc,
              double& yc, double& r, std::int64_t& coincidentTests);

/// The message for tests that met coincident points, shown once for all of them.
inline constexpr std::string_view coincidentMessage = "INCIRCUM - F - Points are coincident !!";

}  // namespace tessaplot::geometry

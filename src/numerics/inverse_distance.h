#pragma once

#include "numerics/scattered_points.h"

namespace tessaplot::numerics {

/// A node whose squared distance to a point is below this takes the point's value as it is.
inline constexpr double hitSquare = 5e-7;
/// The last index of the work vectors of `Shepard` and `Shepard4D`: they serve 10001 points.
inline constexpr int shepardLastIndex = 10000;

/// Inverse squared distance mean of all points at (x, y), of the colour or of the height column (D. Shepard, "A
/// two-dimensional interpolation function for irregularly-spaced data", 1968). x and y are degrees where the
/// coordinates are angles; colours of cylindrical points use differences as fractions of the extents in radians and
/// height. The first point nearer than `hitSquare` gives its value. Throws SubscriptOutOfRange beyond 10001 points,
/// DivisionByZero for an extent of zero that is divided by or for no points, Overflow.
double Shepard(const ScatteredSurface& surface, double x, double y, bool colour);

/// `Shepard` of the value in three dimensions.
double Shepard4D(const ScatteredVolume& volume, double x, double y, double z);

}  // namespace tessaplot::numerics

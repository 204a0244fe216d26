#pragma once

#include "numerics/scattered_points.h"

namespace tessaplot::numerics {

/// A node closer than this (squared) to a point takes the point's value as it is.
inline constexpr double adoptedSquare = 0.01;
/// The square that marks a point as used. A plain number: beyond it a used point is nearer than an unused one.
inline constexpr double usedSquare = 10000000.0;

/// Inverse-distance mean of the heights of the `k` points nearest to (x, y), weights 1/r (D. Shepard, "A
/// two-dimensional interpolation function for irregularly-spaced data", 1968, with the exponent 1). x and y are degrees
/// where the coordinates are angles. The first of equally near points is taken. Any fault (more points than the
/// application-wide set has, a result that is no finite number, `k` of 0) leaves `z` as it was; true if `z` was set.
bool NDS(const ScatteredSurface& surface, double x, double y, double& z, int k);

/// `NDS` of the colour column. Distances between cylindrical points are fractions of the extents in radians and height.
bool NDSC(const ScatteredSurface& surface, double x, double y, double& c, int k);

/// `NDS` of the value in three dimensions.
bool NDS4D(const ScatteredVolume& volume, double x, double y, double z, double& v, int k);

}  // namespace tessaplot::numerics

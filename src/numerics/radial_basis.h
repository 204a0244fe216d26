#pragma once

#include <string_view>

#include "numerics/scattered_points.h"

namespace tessaplot::numerics {

/// What `RBF` and `TPS` give as the value of a node when their system has no solution.
inline constexpr double GridFailed = 9999999999.0;
/// What a person is told then.
inline constexpr std::string_view unsolvableMessage = "Can not solve the linear eqution group.";

/// Most unknowns of a radial system: `RBF` serves 500 points, `TPS` 497.
inline constexpr int radialUnknowns = 500;

/// Multiquadric sqrt(r^2 + 1) through the points (columns x, y as plane coordinates, whatever they mean), of the colour
/// or of column z, at (x, y) (R. L. Hardy, "Multiquadric equations of topography and other irregular surfaces", 1971).
/// Where the system is singular it returns false with `GridFailed` in `result`. Throws SubscriptOutOfRange beyond 500
/// points, Overflow.
bool RBF(const ScatteredSurface& surface, double x, double y, bool colour, double& result);

/// As `RBF` with the spline r^2 log(r^2 + 6) and a linear term (J. Duchon, "Splines minimizing rotation-invariant
/// semi-norms in Sobolev spaces", 1977, with an argument that keeps the logarithm away from zero). At most 497 points.
bool TPS(const ScatteredSurface& surface, double x, double y, bool colour, double& result);

}  // namespace tessaplot::numerics

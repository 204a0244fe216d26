#pragma once

#include <span>
#include <vector>

#include "numerics/lattice.h"
#include "numerics/scattered_points.h"

namespace tessaplot::numerics {

/// Which of the two formulas for distances between cylindrical points holds; the other coordinates have only one.
enum class PlaneMetric {
    Plain,       ///< Differences in degrees and in height.
    Normalised,  ///< Fractions of the extents in radians and in height.
};

/// The scattered points of a surface in the plane in which distances are measured, converted once.
struct PlaneColumns {
    PlaneColumns(const ScatteredSurface& surface, PlaneMetric metric);

    /// Largest magnitude that the points and the nodes of a lattice give to a distance along an axis, before it is
    /// squared; infinity if a number is not finite or a range that is divided by is 0.
    double largestDistance(const Lattice& lattice) const;

    /// Turns node positions, in degrees where coordinates are angles, into this plane.
    void bringInto(NodeBlock& block) const;

    std::vector<double> x, y;
    PlaneMetric metric;
    double rangeX = 1, rangeY = 1;  ///< What differences are divided by; 1 unless normalised.
};

/// The metric in which colours are measured.
PlaneMetric colourMetric(const ScatteredSurface& surface);

/// As `PlaneColumns::largestDistance`, in three dimensions.
double largestDistance(const ScatteredVolume& volume, const Lattice& lattice);

/// The largest magnitude of a column, infinity if one of its numbers is not finite.
double largestMagnitude(std::span<const double> column);

/// True if all numbers are 0 or so far from both ends of the range that quotients by squared distances cannot leave it.
bool hasModerateValues(std::span<const double> column);

/// Up to this magnitude distances along the axes have squares whose sum is finite.
inline constexpr double safeDistance = 1e150;
/// Up to this magnitude the sum of their squares is moderate as well.
inline constexpr double moderateDistance = 1e75;

}  // namespace tessaplot::numerics

#pragma once

#include <span>

#include "geometry/contour.h"

namespace tessaplot::geometry::test {

/// Contours on a surface by two tables of crossings, filled anew for each level, with each node tried against each
/// level for the nudge. Levels carry no colours, intervals must be usable ones.
ContourLines<SurfacePoint> plainContour3D(const ContourGrid& grid, std::span<const double> surface, double interval);

}  // namespace tessaplot::geometry::test

#pragma once

#include <cstdint>
#include <span>

#include "geometry/delaunay.h"

namespace tessaplot::geometry::test {

/// The triangulation by a walk over all triangles for each point, with every circle computed anew.
Triangulation plainTriangulate(std::int32_t n, std::span<double> X, std::span<double> Y);

}  // namespace tessaplot::geometry::test

#pragma once

#include <cstddef>
#include <vector>

#include "numerics/grid.h"
#include "peerbench/gen.h"

namespace tessaplot::bench {

/// Scattered points over the square from -10 to 10 with a grid to bring them to.
class SurfaceInput {
 public:
    SurfaceInput(Points points, int steps);

    /// A view that lives as long as this.
    numerics::ScatteredSurface view() const;
    /// Grids once; the nodes are kept.
    void grid(int method);
    /// Root mean square of a column over the nodes.
    double rootMeanSquare(const std::vector<double>& column) const;

    const std::vector<double>& heights() const { return z_; }
    const std::vector<double>& colours() const { return c_; }

 private:
    Points points_;
    int steps_;
    std::vector<double> x_, y_, z_, c_;
};

}  // namespace tessaplot::bench

#include "numerics/faults.h"
#include "numerics/grid_passes.h"
#include "numerics/poly_fit.h"

namespace tessaplot::numerics {

void quadraticPass(std::span<const double> coefficients, const Lattice& lattice, const Progress& progress,
                   NodeValues& values) {
    const bool surface = coefficients.size() == surfaceFitTerms + 1;
    forEachBlock(lattice, progress, [&](std::size_t first, std::size_t present, const NodeBlock& block) {
        for (std::size_t lane = 0; lane < present; ++lane) {
            const double value = surface ? quadraticAt(coefficients, block.x[lane], block.y[lane])
                                         : quadraticAt(coefficients, block.x[lane], block.y[lane], block.z[lane]);
            values.value[first + lane] = finite(value, "the value of a quadratic fit");
            values.colour[first + lane] = value;
        }
    });
}

}  // namespace tessaplot::numerics

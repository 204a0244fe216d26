#include <cmath>

#include "base/failure.h"
#include "numerics/faults.h"
#include "numerics/grid_passes.h"
#include "numerics/linear_system.h"
#include "numerics/radial_basis.h"
#include "numerics/vector_kernels.h"

namespace tessaplot::numerics {

namespace {

constexpr std::size_t splineExtra = 3;

double basisBetweenPoints(RadialKind kind, double dx, double dy) {
    const double square = dx * dx + dy * dy;
    return kind == RadialKind::Multiquadric ? std::sqrt(square + 1.0) : std::log(square + 6.0) * square;
}

/// The matrix of `RBF` or `TPS` with value and colour as its right sides.
LinearSystem makeSystem(const ScatteredSurface& surface, RadialKind kind) {
    const std::size_t count = surface.x.size();
    LinearSystem system(kind == RadialKind::Spline ? count + splineExtra : count);
    for (std::size_t i = 0; i < count; ++i) {
        const std::span<double> row = system.coefficients(i);
        for (std::size_t j = 0; j <= i; ++j) {
            const double basis = basisBetweenPoints(kind, surface.x[i] - surface.x[j], surface.y[i] - surface.y[j]);
            row[j] = basis;
            system.coefficients(j)[i] = basis;
        }
        system.values(0)[i] = surface.z[i];
        system.values(1)[i] = surface.c[i];
        if (kind == RadialKind::Multiquadric) continue;
        const std::array<double, splineExtra> linear = {1, surface.x[i], surface.y[i]};
        for (std::size_t j = 0; j < splineExtra; ++j)
            row[count + j] = system.coefficients(count + j)[i] = linear[j];
    }
    return system;
}

void addSplines(const PointColumns& points, const NodeBlock& block, NodeSums& sums) {
    for (std::size_t lane = 0; lane < blockNodes; ++lane)
        sums.first[lane] = sums.second[lane] = 0;
    for (std::size_t i = 0; i < points.count; ++i) {
        double squares[blockNodes];
        double logarithms[blockNodes];
        for (std::size_t lane = 0; lane < blockNodes; ++lane) {
            const double dx = block.x[lane] - points.x[i];
            const double dy = block.y[lane] - points.y[i];
            squares[lane] = dx * dx + dy * dy;
        }
        for (std::size_t lane = 0; lane < blockNodes; ++lane)
            logarithms[lane] = std::log(squares[lane] + 6.0);
        for (std::size_t lane = 0; lane < blockNodes; ++lane) {
            sums.first[lane] += points.first[i] * squares[lane] * logarithms[lane];
            sums.second[lane] += points.second[i] * squares[lane] * logarithms[lane];
        }
    }
}

/// Adds the linear term, whose coefficients follow those of the points.
double withLinearTerm(double sum, const double* linear, double x, double y) {
    return sum + linear[0] + linear[1] * x + linear[2] * y;
}

void evaluate(const PointColumns& points, RadialKind kind, const Lattice& lattice, const Progress& progress,
              NodeValues& values) {
    forEachBlock(lattice, progress, [&](std::size_t first, std::size_t present, const NodeBlock& block) {
        NodeSums sums;
        if (kind == RadialKind::Multiquadric)
            kernels().multiquadrics(points, block, sums);
        else
            addSplines(points, block, sums);
        for (std::size_t lane = 0; lane < present; ++lane) {
            double value = sums.first[lane];
            double colour = sums.second[lane];
            if (kind == RadialKind::Spline) {
                value = withLinearTerm(value, points.first + points.count, block.x[lane], block.y[lane]);
                colour = withLinearTerm(colour, points.second + points.count, block.x[lane], block.y[lane]);
            }
            values.value[first + lane] = finite(value, "a radial sum");
            values.colour[first + lane] = finite(colour, "a radial sum");
        }
    });
}

void requirePoints(int count, RadialKind kind) {
    const int most = kind == RadialKind::Spline ? radialUnknowns - static_cast<int>(splineExtra) : radialUnknowns;
    if (count > most)
        base::failSubscript(kind == RadialKind::Spline ? "the points of TPS" : "the points of RBF", count, 1, most);
}

}  // namespace

bool radialPass(const ScatteredSurface& surface, RadialKind kind, const Lattice& lattice, const Progress& progress,
                NodeValues& values) {
    if (lattice.nodes() == 0) return true;
    requirePoints(surface.Points(), kind);
    LinearSystem system = makeSystem(surface, kind);
    if (!system.solve()) return false;
    const PointColumns points = {.count = surface.x.size(),
                                 .x = surface.x.data(),
                                 .y = surface.y.data(),
                                 .first = system.values(0).data(),
                                 .second = system.values(1).data()};
    evaluate(points, kind, lattice, progress, values);
    return true;
}

}  // namespace tessaplot::numerics

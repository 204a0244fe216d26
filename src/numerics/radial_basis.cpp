#include "numerics/radial_basis.h"

#include <cmath>

#include "numerics/faults.h"
#include "numerics/linear_solver.h"

namespace tessaplot::numerics {

namespace {

/// Squared distance between a point and a position, summed in the order that both systems use.
double squareBetween(const ScatteredSurface& surface, std::size_t i, double x, double y) {
    const double dx = surface.x[i] - x;
    const double dy = surface.y[i] - y;
    return dx * dx + dy * dy;
}

double multiquadric(double square) {
    return std::sqrt(square + 1.0);
}

Table rightSide(const ScatteredSurface& surface, bool colour) {
    Table b = makeTable("the right side of a radial system", radialUnknowns);
    const std::span<const double> values = colour ? surface.c : surface.z;
    for (std::size_t i = 0; i < values.size(); ++i)
        b(static_cast<int>(i) + 1) = values[i];
    return b;
}

Table multiquadricSystem(const ScatteredSurface& surface) {
    Table a = makeTable("the matrix of a radial system", radialUnknowns, radialUnknowns);
    for (int i = 0; i < surface.Points(); ++i)
        for (int j = 0; j < surface.Points(); ++j) {
            const auto other = static_cast<std::size_t>(j);
            const double square =
                squareBetween(surface, static_cast<std::size_t>(i), surface.x[other], surface.y[other]);
            a(i + 1, j + 1) = multiquadric(square);
        }
    return a;
}

Table splineSystem(const ScatteredSurface& surface) {
    Table a = makeTable("the matrix of a radial system", radialUnknowns, radialUnknowns);
    const int count = surface.Points();
    for (int i = 0; i < count; ++i) {
        const auto point = static_cast<std::size_t>(i);
        for (int j = 0; j < count; ++j) {
            if (j == i) continue;
            const auto other = static_cast<std::size_t>(j);
            const double square = squareBetween(surface, point, surface.x[other], surface.y[other]);
            a(i + 1, j + 1) = std::log(square + 6.0) * square;
        }
        a(i + 1, count + 1) = a(count + 1, i + 1) = 1;
        a(i + 1, count + 2) = a(count + 2, i + 1) = surface.x[point];
        a(i + 1, count + 3) = a(count + 3, i + 1) = surface.y[point];
    }
    return a;
}

}  // namespace

bool RBF(const ScatteredSurface& surface, double x, double y, bool colour, double& result) {
    Table a = multiquadricSystem(surface);
    Table b = rightSide(surface, colour);
    result = GridFailed;
    if (!SolveLinear(surface.Points(), a, b)) return false;
    double sum = 0;
    for (int i = 0; i < surface.Points(); ++i)
        sum += b(i + 1) * multiquadric(squareBetween(surface, static_cast<std::size_t>(i), x, y));
    result = finite(sum, "a radial sum");
    return true;
}

bool TPS(const ScatteredSurface& surface, double x, double y, bool colour, double& result) {
    const int count = surface.Points();
    Table a = splineSystem(surface);
    Table b = rightSide(surface, colour);
    result = GridFailed;
    if (!SolveLinear(count + 3, a, b)) return false;
    double sum = 0;
    for (int i = 0; i < count; ++i) {
        const double square = squareBetween(surface, static_cast<std::size_t>(i), x, y);
        sum += b(i + 1) * square * std::log(square + 6.0);
    }
    sum = sum + b(count + 1) + b(count + 2) * x + b(count + 3) * y;
    result = finite(sum, "a radial sum");
    return true;
}

}  // namespace tessaplot::numerics

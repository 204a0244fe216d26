#include "numerics/local_fit.h"

#include <array>
#include <cmath>

namespace tessaplot::numerics {

namespace {

constexpr int terms = 6;

std::array<double, terms> quadraticBasis(double x, double y) {
    return {1, x, y, x * y, x * x, y * y};
}

double localWeight(double square, int code, double previous) {
    constexpr double offset = 1e-5;
    constexpr std::array<double, 8> decay = {0, 0, 0.1, 0.01, 0.001, 0.0001, 1e-5, 1e-6};
    const double distance = square + offset;
    if (code == 0) return 1 / distance;
    if (code == 1) return 1 / (distance * distance * distance * distance);
    if (code >= 2 && code <= 7) return std::exp(-decay[static_cast<std::size_t>(code)] * square) / distance;
    return previous;
}

void addToNormalEquations(Table& system, const std::array<double, terms>& basis, double value, double weight) {
    for (int i = 1; i <= terms; ++i) {
        const double weighted = weight * basis[static_cast<std::size_t>(i - 1)];
        for (int j = i; j <= terms; ++j)
            system(i, j) += weighted * basis[static_cast<std::size_t>(j - 1)];
        system(i, terms + 1) += weighted * value;
    }
}

void mirrorUpperTriangle(Table& system) {
    for (int i = 2; i <= terms; ++i)
        for (int j = 1; j < i; ++j)
            system(i, j) = system(j, i);
}

}  // namespace

void GAU(int n, Table& a, Table& b) {
    for (int k = 1; k <= n - 1; ++k)
        for (int i = k + 1; i <= n; ++i)
            for (int j = k + 1; j <= n + 1; ++j)
                a(i, j) = a(i, j) - a(i, k) * a(k, j) / a(k, k);
    b(n) = a(n, n + 1) / a(n, n);
    for (int i = n - 1; i >= 1; --i) {
        double sum = 0;
        for (int j = i + 1; j <= n; ++j)
            sum += a(i, j) * b(j);
        b(i) = (a(i, n + 1) - sum) / a(i, i);
    }
}

double WLSA(const ScatteredSurface& surface, double x, double y, int code) {
    Table system = makeTable("the system of WLSA", terms, terms + 1);
    double weight = 0;
    for (std::size_t i = 0; i < surface.x.size(); ++i) {
        const double dx = surface.x[i] - x;
        const double dy = surface.y[i] - y;
        weight = localWeight(dx * dx + dy * dy, code, weight);
        addToNormalEquations(system, quadraticBasis(surface.x[i], surface.y[i]), surface.z[i], weight);
    }
    mirrorUpperTriangle(system);
    Table coefficients = makeTable("the coefficients of WLSA", terms);
    GAU(terms, system, coefficients);
    const std::array<double, terms> basis = quadraticBasis(x, y);
    double value = 0;
    for (int i = 1; i <= terms; ++i)
        value += coefficients(i) * basis[static_cast<std::size_t>(i - 1)];
    return value;
}

}  // namespace tessaplot::numerics

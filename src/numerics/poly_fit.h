#pragma once

#include <array>
#include <span>
#include <vector>

#include "numerics/table.h"

namespace tessaplot::numerics {

/// The most points of a fit: the rows of its design matrix.
inline constexpr int fitPoints = 10000;

/// Terms of the full quadratic besides the constant.
inline constexpr int surfaceFitTerms = 5;
inline constexpr int volumeFitTerms = 9;

/// How well a fit meets its points, and whether it explains them (analysis of variance of a regression).
struct FitStatistics {
    double SSE = 0;               ///< Sum of (value - fitted)^2.
    double SSM = 0;               ///< Sum of (fitted - mean value)^2.
    double total = 0;             ///< SSE + SSM.
    double R = 0;                 ///< Square root of SSM over total.
    double standardEstimate = 0;  ///< Square root of SSM, by design not SSE, over the degrees of freedom of the error.
    double modelMeanSquare = 0;
    double errorMeanSquare = 0;
    double F = 0;  ///< modelMeanSquare over errorMeanSquare.

    static constexpr std::array<double, 2> levels = {0.05, 0.01};
    std::array<double, 2> percentagePoints = {};  ///< Of the F distribution, for each of `levels`.
    std::array<bool, 2> significant = {};         ///< F is at or above the percentage point of the level.
};

/// A least-squares quadratic with its values at the points and its statistics.
struct QuadraticFit {
    bool singular = false;             ///< The points do not determine the quadratic; the coefficients are 0.
    std::vector<double> coefficients;  ///< c0 upward: 1, x, y, xy, x^2, y^2, or 1, x, y, z, xy, xz, yz, x^2, y^2, z^2.
    std::vector<double> fitted;
    FitStatistics statistics;
};

/// Fits `data` (rows 1 to n, columns x, y, value) by the plain normal equations with an explicit inverse. Throws
/// SubscriptOutOfRange beyond 10000 points, DivisionByZero for 6 points or for values that leave nothing to divide by,
/// BadInput for fewer, Overflow.
QuadraticFit PolyFit(const Table& data, int n);

/// As `PolyFit` for columns x, y, z, value; DivisionByZero for 10 points, BadInput for fewer.
QuadraticFit PolyFit4D(const Table& data, int n);

/// The statistics of a surface fit with the given values at the n points; failures as for `PolyFit`.
FitStatistics PolyStats(const Table& data, int n, std::span<const double> fitted);

/// The statistics of a volume fit.
FitStatistics PolyStats4D(const Table& data, int n, std::span<const double> fitted);

/// The quadratic's value at a position.
double quadraticAt(std::span<const double> coefficients, double x, double y);
double quadraticAt(std::span<const double> coefficients, double x, double y, double z);

}  // namespace tessaplot::numerics

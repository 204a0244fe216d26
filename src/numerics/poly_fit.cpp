#include "numerics/poly_fit.h"

#include <cmath>
#include <string>

#include "numerics/f_distribution.h"
#include "numerics/faults.h"
#include "numerics/matrix_tools.h"

namespace tessaplot::numerics {

namespace {

std::array<double, surfaceFitTerms + 1> surfaceBasis(double x, double y) {
    return {1, x, y, x * y, x * x, y * y};
}

std::array<double, volumeFitTerms + 1> volumeBasis(double x, double y, double z) {
    return {1, x, y, z, x * y, x * z, y * z, x * x, y * y, z * z};
}

Table surfaceDesign(const Table& data, int n) {
    Table design = makeTable("the design matrix of a fit", fitPoints, surfaceFitTerms + 1);
    for (int i = 1; i <= n; ++i) {
        int column = 0;
        for (const double term : surfaceBasis(data(i, 1), data(i, 2)))
            design(i, ++column) = term;
    }
    return design;
}

Table volumeDesign(const Table& data, int n) {
    Table design = makeTable("the design matrix of a fit", fitPoints, volumeFitTerms + 1);
    for (int i = 1; i <= n; ++i) {
        int column = 0;
        for (const double term : volumeBasis(data(i, 1), data(i, 2), data(i, 3)))
            design(i, ++column) = term;
    }
    return design;
}

std::vector<double> columnOf(const Table& table, int rows, int column) {
    std::vector<double> values;
    for (int i = 1; i <= rows; ++i)
        values.push_back(table(i, column));
    return values;
}

/// Fits column `valueColumn` of the data by the columns of `design`.
QuadraticFit fitDesign(const Table& design, int terms, const Table& data, int n, int valueColumn) {
    Table transposed = makeTable("the transposed design matrix", terms, n);
    Table normal = makeTable("the normal equations", terms, terms);
    Table inverse = makeTable("the inverse of the normal equations", terms, terms);
    Table projector = makeTable("the projector of a fit", terms, n);
    Table values = makeTable("the values of a fit", n, 1);
    Table coefficients = makeTable("the coefficients of a fit", terms, 1);
    Table fitted = makeTable("the fitted values", n, 1);

    QuadraticFit fit;
    MatTranspose(n, terms, design, transposed);
    MatMultiply(terms, n, terms, transposed, design, normal);
    fit.singular = !MatInverse(terms, normal, inverse);
    MatMultiply(terms, terms, n, inverse, transposed, projector);
    for (int i = 1; i <= n; ++i)
        values(i, 1) = data(i, valueColumn);
    MatMultiply(terms, n, 1, projector, values, coefficients);
    MatMultiply(n, terms, 1, design, coefficients, fitted);
    fit.coefficients = columnOf(coefficients, terms, 1);
    fit.fitted = columnOf(fitted, n, 1);
    return fit;
}

/// Throws unless n points leave degrees of freedom to the error of a fit of `terms` terms besides the constant.
void requireFreedom(int n, int terms) {
    if (n > terms + 1) return;
    const auto code = n == terms + 1 ? base::FailureCode::DivisionByZero : base::FailureCode::BadInput;
    throw base::Failure(code, "The quadratic fit needs more than " + std::to_string(terms + 1) +
                                  " points: its statistics divide by the number of points beyond that.");
}

FitStatistics statisticsOf(const Table& data, int n, int valueColumn, int terms, std::span<const double> fitted) {
    requireFreedom(n, terms);
    double mean = 0;
    for (int i = 1; i <= n; ++i)
        mean += data(i, valueColumn);
    mean /= n;

    FitStatistics result;
    for (int i = 1; i <= n; ++i) {
        const double value = fitted[static_cast<std::size_t>(i - 1)];
        result.SSE += (data(i, valueColumn) - value) * (data(i, valueColumn) - value);
        result.SSM += (value - mean) * (value - mean);
    }
    result.total = finite(result.SSE + result.SSM, "the sum of squares of a fit");
    result.R = std::sqrt(quotient(result.SSM, result.total, "the values of a fit are all zero"));
    const int freedom = n - terms - 1;
    result.standardEstimate = std::sqrt(result.SSM / freedom);
    result.modelMeanSquare = result.SSM / terms;
    result.errorMeanSquare = result.SSE / freedom;
    result.F = quotient(result.modelMeanSquare, result.errorMeanSquare, "a fit without any error has no F");
    for (std::size_t i = 0; i < FitStatistics::levels.size(); ++i) {
        FInverse(FitStatistics::levels[i], terms, freedom, result.percentagePoints[i]);
        result.significant[i] = result.F >= result.percentagePoints[i];
    }
    return result;
}

}  // namespace

QuadraticFit PolyFit(const Table& data, int n) {
    QuadraticFit fit = fitDesign(surfaceDesign(data, n), surfaceFitTerms + 1, data, n, 3);
    fit.statistics = PolyStats(data, n, fit.fitted);
    return fit;
}

QuadraticFit PolyFit4D(const Table& data, int n) {
    QuadraticFit fit = fitDesign(volumeDesign(data, n), volumeFitTerms + 1, data, n, 4);
    fit.statistics = PolyStats4D(data, n, fit.fitted);
    return fit;
}

FitStatistics PolyStats(const Table& data, int n, std::span<const double> fitted) {
    return statisticsOf(data, n, 3, surfaceFitTerms, fitted);
}

FitStatistics PolyStats4D(const Table& data, int n, std::span<const double> fitted) {
    return statisticsOf(data, n, 4, volumeFitTerms, fitted);
}

double quadraticAt(std::span<const double> c, double x, double y) {
    return c[0] + c[1] * x + c[2] * y + c[3] * x * y + c[4] * (x * x) + c[5] * (y * y);
}

double quadraticAt(std::span<const double> c, double x, double y, double z) {
    return c[0] + c[1] * x + c[2] * y + c[3] * z + c[4] * x * y + c[5] * x * z + c[6] * y * z + c[7] * (x * x) +
           c[8] * (y * y) + c[9] * (z * z);
}

}  // namespace tessaplot::numerics

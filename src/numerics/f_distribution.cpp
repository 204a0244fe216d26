#include "numerics/f_distribution.h"

#include <cmath>
#include <limits>

#include "base/failure.h"

namespace tessaplot::numerics {

namespace {

/// The continued fraction of I_x(a, b) without its leading factor, by W. J. Lentz's forward recurrence.
double betaFraction(double x, double a, double b) {
    constexpr double tiny = 1e-300;
    constexpr double closeEnough = 1e-15;
    constexpr int mostTerms = 100000;
    const auto awayFromZero = [](double value) { return std::abs(value) < tiny ? tiny : value; };

    double numeratorRatio = 1;
    double denominatorRatio = 1 / awayFromZero(1 - (a + b) * x / (a + 1));
    double fraction = denominatorRatio;
    for (int m = 1; m <= mostTerms; ++m) {
        const double even = m * (b - m) * x / ((a + 2 * m - 1) * (a + 2 * m));
        const double odd = -(a + m) * (a + b + m) * x / ((a + 2 * m) * (a + 2 * m + 1));
        double change = 1;
        for (const double term : {even, odd}) {
            denominatorRatio = 1 / awayFromZero(1 + term * denominatorRatio);
            numeratorRatio = awayFromZero(1 + term / numeratorRatio);
            change = numeratorRatio * denominatorRatio;
            fraction *= change;
        }
        if (std::abs(change - 1) < closeEnough) break;
    }
    return fraction;
}

/// The x for which I_x(a, b) is `p`, by halving: the function rises all the way.
double inverseIncompleteBeta(double p, double a, double b) {
    double low = 0;
    double high = 1;
    for (;;) {
        const double middle = (low + high) / 2;
        if (middle <= low || middle >= high || high < std::numeric_limits<double>::min()) return high;
        (incompleteBeta(middle, a, b) < p ? low : high) = middle;
    }
}

}  // namespace

double logGamma(double x) {
    // Stirling's series after a shift to where five terms give full precision.
    double shift = 0;
    const int steps = x < 15 ? static_cast<int>(std::ceil(15 - x)) : 0;
    for (int i = 0; i < steps; ++i)
        shift += std::log(x + i);
    x += steps;
    const double halfLogTwoPi = 0.91893853320467274178;
    const double inverse = 1 / x;
    const double square = inverse * inverse;
    const double series =
        1.0 / 12 - square * (1.0 / 360 - square * (1.0 / 1260 - square * (1.0 / 1680 - square * (1.0 / 1188))));
    return (x - 0.5) * std::log(x) - x + halfLogTwoPi + inverse * series - shift;
}

double incompleteBeta(double x, double a, double b) {
    if (x <= 0) return 0;
    if (x >= 1) return 1;
    const double logFactor = logGamma(a + b) - logGamma(a) - logGamma(b) + a * std::log(x) + b * std::log1p(-x);
    const double factor = std::exp(logFactor);
    // The fraction converges fast below the mean only; above it the complement is taken.
    if (x < (a + 1) / (a + b + 2)) return factor * betaFraction(x, a, b) / a;
    return 1 - factor * betaFraction(1 - x, b, a) / b;
}

void FInverse(double p, int df1, int df2, double& result) {
    if (!(p > 0 && p < 1) || df1 < 1 || df2 < 1)
        throw base::Failure(base::FailureCode::BadInput,
                            "A percentage point of the F distribution needs a probability between 0 and 1 and at least "
                            "one degree of freedom on both sides.");
    // P(F > f) is I_x(df2/2, df1/2) at x = df2 / (df2 + df1 f).
    const double x = inverseIncompleteBeta(p, df2 / 2.0, df1 / 2.0);
    result = df2 * (1 - x) / (df1 * x);
}

}  // namespace tessaplot::numerics

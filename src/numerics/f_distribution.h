#pragma once

namespace tessaplot::numerics {

/// Logarithm of the gamma function of a positive number.
double logGamma(double x);

/// Regularised incomplete beta function I_x(a, b) for x in [0, 1] and positive a, b, by its continued fraction (DLMF
/// 8.17.22, https://dlmf.nist.gov/8.17).
double incompleteBeta(double x, double a, double b);

/// `result` becomes the upper percentage point of the F distribution: the value that an F with `df1` and `df2` degrees
/// of freedom passes with the probability `p`. Throws BadInput for p outside (0, 1) and degrees of freedom below 1.
void FInverse(double p, int df1, int df2, double& result);

}  // namespace tessaplot::numerics

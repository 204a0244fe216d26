#pragma once

namespace tessaplot::graphs {

/// A data coordinate in scene units: `value` over a scale factor. Throws DivisionByZero while the factor is 0, which is
/// so until a data set has been scaled.
double overScale(double value, double scale);

}  // namespace tessaplot::graphs

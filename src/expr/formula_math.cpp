#include "expr/formula_math.h"

namespace tessaplot::expr {

Outcome power(double base, double exponent, double& value) {
    if (exponent == 0) return yield(1, value);
    if (base >= 0 || (base < 0 && exponent == std::floor(exponent))) return yield(std::pow(base, exponent), value);
    return Outcome::PowerFailure;
}

}  // namespace tessaplot::expr

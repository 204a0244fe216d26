#pragma once

#include <cmath>

#include "base/failure.h"

namespace tessaplot::numerics {

/// `value` itself; throws Overflow if it left the range of finite numbers. `what` names it in the message.
inline double finite(double value, const char* what) {
    if (!std::isfinite(value))
        throw base::Failure(base::FailureCode::Overflow, std::string("Overflow: ") + what + " is out of range.");
    return value;
}

/// `dividend / divisor`; throws DivisionByZero, or Overflow for a result that is not finite.
inline double quotient(double dividend, double divisor, const char* what) {
    if (divisor == 0)
        throw base::Failure(base::FailureCode::DivisionByZero, std::string("Division by zero: ") + what + ".");
    return finite(dividend / divisor, what);
}

}  // namespace tessaplot::numerics

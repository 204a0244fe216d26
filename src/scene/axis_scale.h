#pragma once

#include <string>

namespace tessaplot::scene {

/// How many digits after the point, 0 to 3, show multiples of `step` without a remainder; 4 if those do not suffice.
int digitsOfStep(double step);

/// `value` with so many digits after the point, halves away from zero, without marks between thousands. A half counts
/// as one if the value's first 15 digits say so.
std::string labelText(double value, int digits);

}  // namespace tessaplot::scene

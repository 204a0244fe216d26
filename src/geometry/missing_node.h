#pragma once

#include <cmath>

namespace tessaplot::geometry {

/// A coordinate or value that marks a node without data.
inline constexpr double missingNode = 0.12345;

/// True for a number that 32-bit geometry can hold: not the marker, not a not-a-number, and finite after rounding.
inline bool isUsable(double number) {
    return number != missingNode && std::isfinite(static_cast<float>(number));
}

}  // namespace tessaplot::geometry

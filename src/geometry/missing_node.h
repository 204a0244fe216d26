#pragma once

#include <cmath>

#include "base/missing_value.h"

namespace tessaplot::geometry {

/// True for a number that 32-bit geometry can hold: not the marker, not a not-a-number, and finite after rounding.
inline bool isUsable(double number) {
    return number != base::missingValue && std::isfinite(static_cast<float>(number));
}

}  // namespace tessaplot::geometry

#pragma once

namespace tessaplot::data {

/// Widens a range by a value: only a strictly smaller one is a new minimum, a strictly greater one a new maximum.
inline void widen(double value, double& minimum, double& maximum) {
    if (value < minimum) minimum = value;
    if (value > maximum) maximum = value;
}

}  // namespace tessaplot::data

#pragma once

#include <array>
#include <cmath>
#include <cstdint>

namespace tessaplot::base {

/// A colour packed into 32 bits: red in the low byte, then green, then blue.
using PackedColor = std::int32_t;

constexpr PackedColor packColor(int red, int green, int blue) {
    return red + 256 * green + 65536 * blue;
}

constexpr int RedOf(PackedColor color) {
    return color & 255;
}
constexpr int GreenOf(PackedColor color) {
    return (color / 256) & 255;
}
constexpr int BlueOf(PackedColor color) {
    return (color / 65536) & 255;
}

/// The red, green and blue of a packed colour over 255, got in floating point: a negative colour gives negative
/// channels.
inline std::array<double, 3> channelsOf(PackedColor color) {
    const double c = color;
    const double b = std::trunc(c / 256 / 256);
    const double g = std::trunc((c - b * 256 * 256) / 256);
    const double r = std::trunc(c - b * 256 * 256 - g * 256);
    return {r / 255, g / 255, b / 255};
}

}  // namespace tessaplot::base

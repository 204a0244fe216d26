#pragma once

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

}  // namespace tessaplot::base

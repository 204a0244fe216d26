#pragma once

namespace tessaplot::base {

/// The pi of every angle conversion and coordinate transform: documents and pictures depend on this short value.
inline constexpr double shortPi = 3.1416;

constexpr double degreesToRadians(double degrees) {
    return degrees * shortPi / 180;
}
constexpr double radiansToDegrees(double radians) {
    return radians / shortPi * 180;
}

}  // namespace tessaplot::base

#pragma once

#include <cmath>

namespace tessaplot::base {

/// A place in Cartesian data axes.
struct Position {
    double x = 0;
    double y = 0;
    double z = 0;
};

/// Where a point in cylindrical coordinates lies; the angle about the Z axis in radians.
inline Position cylindricalPosition(double angle, double radius, double height) {
    return {std::cos(angle) * radius, std::sin(angle) * radius, height};
}

/// Where a point in spherical coordinates lies; the angles about the Z axis and from it in radians.
inline Position sphericalPosition(double longitude, double polar, double radius) {
    return {std::sin(polar) * radius * std::cos(longitude), std::sin(polar) * radius * std::sin(longitude),
            std::cos(polar) * radius};
}

}  // namespace tessaplot::base

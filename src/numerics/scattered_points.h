#pragma once

#include <span>

namespace tessaplot::numerics {

/// What the columns of scattered surface points mean; the numbers are those of the data kinds.
enum class SurfaceCoordinates {
    Cartesian = 1,    ///< x, y, height.
    Cylindrical = 5,  ///< Angle in radians, radius, height; the radius is what a grid interpolates.
    Spherical = 7,    ///< Two angles in radians, radius; the radius is what a grid interpolates.
};

/// Scattered points of a surface and the lattice to bring them to: a view, the columns belong to the caller.
struct ScatteredSurface {
    SurfaceCoordinates coordinates = SurfaceCoordinates::Cartesian;
    std::span<const double> x, y, z, c;  ///< `Irreg3DX` to `Irreg3DC`, as many valid elements each.
    double MinX = 0, MaxX = 0, MinY = 0, MaxY = 0, MinZ = 0, MaxZ = 0;
    double MinA = 0, MaxA = 0, MinB = 0, MaxB = 0;  ///< Degrees.
    int StepsX = 0, StepsY = 0;                     ///< Nodes along the first and the second axis.
    int applicationPoints = 0;                      ///< `Points` of the application-wide set, see `NDS`.

    int Points() const { return static_cast<int>(x.size()); }
};

/// Scattered points of a volume and the lattice to bring them to: a view, the columns belong to the caller.
struct ScatteredVolume {
    std::span<const double> x, y, z, v;  ///< `Irreg4DX` to `Irreg4DV`, as many valid elements each.
    double MinX = 0, MaxX = 0, MinY = 0, MaxY = 0, MinZ = 0, MaxZ = 0;
    int StepsX = 0, StepsY = 0, StepsZ = 0;  ///< Nodes along each axis.
    int applicationPoints = 0;               ///< `Points` of the application-wide set, see `NDS4D`.

    int Points() const { return static_cast<int>(x.size()); }
};

/// The column that a surface interpolates besides the colour: the radius of cylindrical points, else the third column.
inline std::span<const double> heightColumn(const ScatteredSurface& surface) {
    return surface.coordinates == SurfaceCoordinates::Cylindrical ? surface.y : surface.z;
}

}  // namespace tessaplot::numerics

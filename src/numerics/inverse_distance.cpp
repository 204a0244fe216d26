#include "numerics/inverse_distance.h"

#include "base/angle.h"
#include "numerics/faults.h"
#include "numerics/table.h"

namespace tessaplot::numerics {

namespace {

/// Differences in the plane between a node and a point.
struct Offset {
    double x;
    double y;
};

Offset fractionalOffset(const ScatteredSurface& surface, std::size_t i, double x, double y) {
    const double angles = finite(surface.MaxX - surface.MinX, "the range of the angles");
    const double heights = finite(surface.MaxZ - surface.MinZ, "the range of the heights");
    return {quotient(base::degreesToRadians(x) - surface.x[i], angles, "the range of the angles"),
            quotient(y - surface.z[i], heights, "the range of the heights")};
}

Offset offsetTo(const ScatteredSurface& surface, std::size_t i, double x, double y, bool colour) {
    switch (surface.coordinates) {
        case SurfaceCoordinates::Cylindrical:
            if (colour) return fractionalOffset(surface, i, x, y);
            return {x - base::radiansToDegrees(surface.x[i]), y - surface.z[i]};
        case SurfaceCoordinates::Spherical:
            return {x - base::radiansToDegrees(surface.x[i]), y - base::radiansToDegrees(surface.y[i])};
        case SurfaceCoordinates::Cartesian:
            break;
    }
    return {x - surface.x[i], y - surface.y[i]};
}

/// The mean of `values` with the weights 1/D, where `squareOf(i)` is D; the first D below the limit ends the search.
template <class SquareOf>
double inverseSquareMean(std::span<const double> values, SquareOf squareOf) {
    Table squares = makeTable("the distances of the inverse distance method", shepardLastIndex);
    for (std::size_t i = 0; i < values.size(); ++i) {
        squares(static_cast<int>(i)) = finite(squareOf(i), "a squared distance");
        if (squares(static_cast<int>(i)) < hitSquare) return values[i];
    }
    double sum = 0;
    double weights = 0;
    for (std::size_t i = 0; i < values.size(); ++i) {
        sum += values[i] / squares(static_cast<int>(i));
        weights += 1 / squares(static_cast<int>(i));
    }
    return quotient(sum, weights, "the inverse distance mean of no points");
}

}  // namespace

double Shepard(const ScatteredSurface& surface, double x, double y, bool colour) {
    return inverseSquareMean(colour ? surface.c : heightColumn(surface), [&](std::size_t i) {
        const Offset offset = offsetTo(surface, i, x, y, colour);
        return offset.y * offset.y + offset.x * offset.x;
    });
}

double Shepard4D(const ScatteredVolume& volume, double x, double y, double z) {
    return inverseSquareMean(volume.v, [&](std::size_t i) {
        const double dx = x - volume.x[i];
        const double dy = y - volume.y[i];
        const double dz = z - volume.z[i];
        return dx * dx + dy * dy + dz * dz;
    });
}

}  // namespace tessaplot::numerics

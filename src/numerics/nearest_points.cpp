#include "numerics/nearest_points.h"

#include "base/angle.h"
#include "base/checked_array.h"
#include "base/failure.h"
#include "numerics/faults.h"

namespace tessaplot::numerics {

namespace {

using Squares = base::CheckedArray<double>;

double square(double value) {
    return value * value;
}

double planeSquare(const ScatteredSurface& surface, std::size_t i, double x, double y) {
    switch (surface.coordinates) {
        case SurfaceCoordinates::Cylindrical:
            return square(base::radiansToDegrees(surface.x[i]) - x) + square(surface.z[i] - y);
        case SurfaceCoordinates::Spherical:
            return square(base::radiansToDegrees(surface.x[i]) - x) + square(base::radiansToDegrees(surface.y[i]) - y);
        case SurfaceCoordinates::Cartesian:
            break;
    }
    return square(surface.x[i] - x) + square(surface.y[i] - y);
}

double colourSquare(const ScatteredSurface& surface, std::size_t i, double x, double y) {
    if (surface.coordinates != SurfaceCoordinates::Cylindrical) return planeSquare(surface, i, x, y);
    const double angles = finite(surface.MaxX - surface.MinX, "the range of the angles");
    const double heights = finite(surface.MaxZ - surface.MinZ, "the range of the heights");
    const double angle = quotient(surface.x[i] - base::degreesToRadians(x), angles, "the range of the angles");
    const double height = quotient(surface.z[i] - y, heights, "the range of the heights");
    return square(angle) + square(height);
}

int indexOfSmallest(const Squares& squares, int count) {
    int smallest = 0;
    for (int i = 1; i < count; ++i)
        if (squares(i) < squares(smallest)) smallest = i;
    return smallest;
}

double blendOfNearest(Squares& squares, std::span<const double> values, int k) {
    const int count = static_cast<int>(values.size());
    if (count == 0) base::failSubscript("the points", 0, 0, -1);
    double sum = 0;
    double weights = 0;
    for (int taken = 0; taken < k; ++taken) {
        const int nearest = indexOfSmallest(squares, count);
        const double value = values[static_cast<std::size_t>(nearest)];
        if (squares(nearest) < adoptedSquare) return value;
        const double r = std::sqrt(squares(nearest));
        sum += value / r;
        weights += 1 / r;
        squares(nearest) = usedSquare;
    }
    return quotient(sum, weights, "the mean of no points");
}

/// Fills the squares by `squareOf(i)` and sets `output` to the blend; a fault on the way leaves it alone.
template <class SquareOf>
bool nearestValue(int applicationPoints, std::span<const double> values, int k, double& output, SquareOf squareOf) {
    try {
        Squares squares("the distances");
        squares.allocate(applicationPoints);
        for (std::size_t i = 0; i < values.size(); ++i)
            squares(static_cast<int>(i)) = finite(squareOf(i), "a squared distance");
        output = finite(blendOfNearest(squares, values, k), "the mean of the nearest points");
        return true;
    } catch (const base::Failure&) {
        return false;
    }
}

}  // namespace

bool NDS(const ScatteredSurface& surface, double x, double y, double& z, int k) {
    return nearestValue(surface.applicationPoints, heightColumn(surface), k, z,
                        [&](std::size_t i) { return planeSquare(surface, i, x, y); });
}

bool NDSC(const ScatteredSurface& surface, double x, double y, double& c, int k) {
    return nearestValue(surface.applicationPoints, surface.c, k, c,
                        [&](std::size_t i) { return colourSquare(surface, i, x, y); });
}

bool NDS4D(const ScatteredVolume& volume, double x, double y, double z, double& v, int k) {
    return nearestValue(volume.applicationPoints, volume.v, k, v, [&](std::size_t i) {
        return square(volume.x[i] - x) + square(volume.y[i] - y) + square(volume.z[i] - z);
    });
}

}  // namespace tessaplot::numerics

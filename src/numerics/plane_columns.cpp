#include "numerics/plane_columns.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/angle.h"

namespace tessaplot::numerics {

namespace {

std::vector<double> inDegrees(std::span<const double> radians) {
    std::vector<double> degrees(radians.size());
    std::transform(radians.begin(), radians.end(), degrees.begin(), base::radiansToDegrees);
    return degrees;
}

std::vector<double> copyOf(std::span<const double> column) {
    return {column.begin(), column.end()};
}

}  // namespace

PlaneColumns::PlaneColumns(const ScatteredSurface& surface, PlaneMetric wanted) : metric(wanted) {
    switch (surface.coordinates) {
        case SurfaceCoordinates::Cartesian:
            x = copyOf(surface.x);
            y = copyOf(surface.y);
            break;
        case SurfaceCoordinates::Cylindrical:
            x = metric == PlaneMetric::Normalised ? copyOf(surface.x) : inDegrees(surface.x);
            y = copyOf(surface.z);
            break;
        case SurfaceCoordinates::Spherical:
            x = inDegrees(surface.x);
            y = inDegrees(surface.y);
            break;
    }
    if (metric == PlaneMetric::Normalised) {
        rangeX = surface.MaxX - surface.MinX;
        rangeY = surface.MaxZ - surface.MinZ;
    }
}

double PlaneColumns::largestDistance(const Lattice& lattice) const {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    if (!std::isfinite(rangeX) || !std::isfinite(rangeY)) return infinity;
    const double range = std::min(std::abs(rangeX), std::abs(rangeY));
    const double largest = 2 * std::max({largestMagnitude(x), largestMagnitude(y), lattice.largest()});
    return range == 0 ? infinity : largest / range;
}

void PlaneColumns::bringInto(NodeBlock& block) const {
    if (metric == PlaneMetric::Plain) return;
    for (double& x_ : block.x)
        x_ = base::degreesToRadians(x_);
}

PlaneMetric colourMetric(const ScatteredSurface& surface) {
    return surface.coordinates == SurfaceCoordinates::Cylindrical ? PlaneMetric::Normalised : PlaneMetric::Plain;
}

double largestDistance(const ScatteredVolume& volume, const Lattice& lattice) {
    return 2 * std::max({largestMagnitude(volume.x), largestMagnitude(volume.y), largestMagnitude(volume.z),
                         lattice.largest()});
}

double largestMagnitude(std::span<const double> column) {
    double largest = 0;
    for (const double value : column) {
        if (!std::isfinite(value)) return std::numeric_limits<double>::infinity();
        largest = std::max(largest, std::abs(value));
    }
    return largest;
}

bool hasModerateValues(std::span<const double> column) {
    constexpr double smallest = 1e-150;
    constexpr double largest = 1e150;
    return std::all_of(column.begin(), column.end(), [](double value) {
        return value == 0 || (std::abs(value) >= smallest && std::abs(value) <= largest);
    });
}

}  // namespace tessaplot::numerics

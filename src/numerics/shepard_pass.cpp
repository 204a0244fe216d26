#include <algorithm>
#include <cmath>

#include "numerics/faults.h"
#include "numerics/grid_passes.h"
#include "numerics/inverse_distance.h"
#include "numerics/plane_columns.h"
#include "numerics/vector_kernels.h"

namespace tessaplot::numerics {

namespace {

using Kernel = void (*)(const PointColumns&, const NodeBlock&, NodeSums&);

/// Squared distance between the point of an index and the node of a lane, as the kernels form it.
double planeSquare(const PointColumns& points, std::size_t i, const NodeBlock& block, std::size_t lane) {
    const double dx = (block.x[lane] - points.x[i]) / points.rangeX;
    const double dy = (block.y[lane] - points.y[i]) / points.rangeY;
    return dy * dy + dx * dx;
}

double volumeSquare(const PointColumns& points, std::size_t i, const NodeBlock& block, std::size_t lane) {
    const double dx = block.x[lane] - points.x[i];
    const double dy = block.y[lane] - points.y[i];
    const double dz = block.z[lane] - points.z[i];
    return dx * dx + dy * dy + dz * dz;
}

std::size_t firstHit(const PointColumns& points, const NodeBlock& block, std::size_t lane) {
    const auto squareOf = points.z == nullptr ? planeSquare : volumeSquare;
    std::size_t i = 0;
    while (squareOf(points, i, block, lane) >= hitSquare)
        ++i;
    return i;
}

double meanOf(double sum, double weights) {
    return quotient(sum, weights, "the inverse distance mean");
}

/// Sets `first`, and `second` if there is one, from the sums of a kernel at each node.
void sumAll(const PointColumns& points, Kernel kernel, const Lattice& lattice, const Progress& progress,
            const PlaneColumns* plane, std::vector<double>& first, std::vector<double>* second) {
    forEachBlock(lattice, progress, [&](std::size_t node, std::size_t present, NodeBlock& block) {
        if (plane != nullptr) plane->bringInto(block);
        NodeSums sums;
        kernel(points, block, sums);
        for (std::size_t lane = 0; lane < present; ++lane, ++node) {
            if (sums.leastSquare[lane] < hitSquare) {
                const std::size_t hit = firstHit(points, block, lane);
                first[node] = points.first[hit];
                if (second != nullptr) (*second)[node] = points.second[hit];
            } else {
                first[node] = meanOf(sums.first[lane], sums.weights[lane]);
                if (second != nullptr) (*second)[node] = meanOf(sums.second[lane], sums.weights[lane]);
            }
        }
    });
}

/// True if the kernels can serve. More points fail at the first node that hits none of those that count, and so does a
/// distance out of range; the plain routine tells which.
bool kernelsServe(std::size_t points, double largest) {
    return points > 0 && points <= shepardLastIndex + 1 && largest <= safeDistance;
}

void plainColumn(const ScatteredSurface& surface, bool colour, const Lattice& lattice, const Progress& progress,
                 std::vector<double>& target) {
    forEachBlock(lattice, progress, [&](std::size_t first, std::size_t present, const NodeBlock& block) {
        for (std::size_t lane = 0; lane < present; ++lane)
            target[first + lane] = Shepard(surface, block.x[lane], block.y[lane], colour);
    });
}

PointColumns columnsOf(const PlaneColumns& plane, double largest, std::span<const double> first,
                       std::span<const double> second) {
    return {.count = plane.x.size(),
            .x = plane.x.data(),
            .y = plane.y.data(),
            .first = first.data(),
            .second = second.data(),
            .rangeX = plane.rangeX,
            .rangeY = plane.rangeY,
            .moderate = largest <= moderateDistance && hasModerateValues(first) && hasModerateValues(second)};
}

/// Heights, and colours too where these share the distances.
void plainMetric(const ScatteredSurface& surface, bool withColours, const Lattice& lattice, const Progress& progress,
                 NodeValues& values) {
    const PlaneColumns plane(surface, PlaneMetric::Plain);
    const double largest = plane.largestDistance(lattice);
    if (kernelsServe(plane.x.size(), largest)) {
        const std::span<const double> heights = heightColumn(surface);
        const PointColumns points = columnsOf(plane, largest, heights, withColours ? surface.c : heights);
        sumAll(points, kernels().inverseSquares, lattice, progress, &plane, values.value,
               withColours ? &values.colour : nullptr);
        return;
    }
    plainColumn(surface, false, lattice, partOf(progress, 0, withColours ? 0.5 : 1), values.value);
    if (withColours) plainColumn(surface, true, lattice, partOf(progress, 0.5, 1), values.colour);
}

void normalisedColours(const ScatteredSurface& surface, const Lattice& lattice, const Progress& progress,
                       NodeValues& values) {
    const PlaneColumns plane(surface, PlaneMetric::Normalised);
    const double largest = plane.largestDistance(lattice);
    if (!kernelsServe(plane.x.size(), largest)) return plainColumn(surface, true, lattice, progress, values.colour);
    const PointColumns points = columnsOf(plane, largest, surface.c, surface.c);
    sumAll(points, kernels().normalisedInverseSquares, lattice, progress, &plane, values.colour, nullptr);
}

}  // namespace

void shepardPass(const ScatteredSurface& surface, const Lattice& lattice, const Progress& progress,
                 NodeValues& values) {
    if (colourMetric(surface) == PlaneMetric::Plain) return plainMetric(surface, true, lattice, progress, values);
    plainMetric(surface, false, lattice, partOf(progress, 0, 0.5), values);
    normalisedColours(surface, lattice, partOf(progress, 0.5, 1), values);
}

void shepardPass(const ScatteredVolume& volume, const Lattice& lattice, const Progress& progress, NodeValues& values) {
    const double largest = largestDistance(volume, lattice);
    if (kernelsServe(volume.x.size(), largest)) {
        const PointColumns points = {.count = volume.x.size(),
                                     .x = volume.x.data(),
                                     .y = volume.y.data(),
                                     .z = volume.z.data(),
                                     .first = volume.v.data(),
                                     .moderate = largest <= moderateDistance && hasModerateValues(volume.v)};
        sumAll(points, kernels().volumeInverseSquares, lattice, progress, nullptr, values.value, nullptr);
        return;
    }
    forEachBlock(lattice, progress, [&](std::size_t first, std::size_t present, const NodeBlock& block) {
        for (std::size_t lane = 0; lane < present; ++lane)
            values.value[first + lane] = Shepard4D(volume, block.x[lane], block.y[lane], block.z[lane]);
    });
}

}  // namespace tessaplot::numerics

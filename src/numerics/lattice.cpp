#include "numerics/lattice.h"

#include <algorithm>
#include <cmath>

#include "numerics/faults.h"

namespace tessaplot::numerics {

namespace {

LatticeAxis makeAxis(double minimum, double maximum, int steps) {
    const double range = finite(maximum - minimum, "the range of a grid axis");
    const double intervals = static_cast<double>(steps) - 1;
    return {.start = minimum,
            .spacing = quotient(range, intervals, "a grid axis needs more than one node to have a spacing"),
            .count = steps};
}

}  // namespace

Lattice::Lattice(const ScatteredSurface& surface) {
    switch (surface.coordinates) {
        case SurfaceCoordinates::Cartesian:
            axes_[0] = makeAxis(surface.MinX, surface.MaxX, surface.StepsX);
            axes_[1] = makeAxis(surface.MinY, surface.MaxY, surface.StepsY);
            break;
        case SurfaceCoordinates::Cylindrical:
            axes_[0] = makeAxis(surface.MinA, surface.MaxA, surface.StepsX);
            axes_[1] = makeAxis(surface.MinZ, surface.MaxZ, surface.StepsY);
            break;
        case SurfaceCoordinates::Spherical:
            axes_[0] = makeAxis(surface.MinA, surface.MaxA, surface.StepsX);
            axes_[1] = makeAxis(surface.MinB, surface.MaxB, surface.StepsY);
            break;
    }
}

Lattice::Lattice(const ScatteredVolume& volume) {
    axes_[0] = makeAxis(volume.MinX, volume.MaxX, volume.StepsX);
    axes_[1] = makeAxis(volume.MinY, volume.MaxY, volume.StepsY);
    axes_[2] = makeAxis(volume.MinZ, volume.MaxZ, volume.StepsZ);
}

std::size_t Lattice::size(std::size_t which) const {
    return static_cast<std::size_t>(std::max(0, axes_[which].count));
}

double Lattice::largest() const {
    double result = 0;
    for (const LatticeAxis& axis : axes_)
        result = std::max({result, std::abs(axis.at(0)), std::abs(axis.at(axis.count))});
    return result;
}

std::array<int, 3> Lattice::indices(std::size_t node) const {
    const std::size_t row = node / size(2);
    return {static_cast<int>(row / size(1)), static_cast<int>(row % size(1)), static_cast<int>(node % size(2))};
}

void Lattice::fill(std::size_t first, NodeBlock& block) const {
    std::array<int, 3> at = indices(first);
    const std::size_t present = std::min(blockNodes, nodes() - first);
    for (std::size_t lane = 0; lane < blockNodes; ++lane) {
        block.x[lane] = axes_[0].at(at[0]);
        block.y[lane] = axes_[1].at(at[1]);
        block.z[lane] = axes_[2].at(at[2]);
        if (lane + 1 >= present) continue;
        for (std::size_t axis = 3; axis-- > 0;) {
            if (++at[axis] < axes_[axis].count) break;
            at[axis] = 0;
        }
    }
}

void forEachBlock(const Lattice& lattice, const Progress& progress,
                  const std::function<void(std::size_t, std::size_t, NodeBlock&)>& perBlock) {
    const auto work = [&](std::size_t first, std::size_t last) {
        NodeBlock block;
        lattice.fill(first, block);
        perBlock(first, last - first, block);
    };
    forEachPiece(lattice.nodes(), blockNodes, work, progress);
}

}  // namespace tessaplot::numerics

#pragma once

#include <optional>
#include <span>
#include <vector>

#include "numerics/lattice.h"
#include "numerics/parallel_pieces.h"
#include "numerics/scattered_points.h"

namespace tessaplot::numerics {

/// The most points that a node of `NDS`, `NDSC` and `NDS4D` blends.
inline constexpr int nearestCount = 5;

/// What a method gives for the nodes of a lattice, in its order; 0 where it gives nothing.
struct NodeValues {
    explicit NodeValues(std::size_t nodes) : value(nodes), colour(nodes) {}
    std::vector<double> value;
    std::vector<double> colour;
};

/// The fast forms of the routines for all nodes at once. Each gives the bits of the routine it is named after and fails
/// as that does; a node that `NDS` and its like leave unset takes the value of the node before. `progress` runs to 1.
void nearestPass(const ScatteredSurface& surface, const Lattice& lattice, const Progress& progress, NodeValues& values);
void nearestPass(const ScatteredVolume& volume, const Lattice& lattice, const Progress& progress, NodeValues& values);
void shepardPass(const ScatteredSurface& surface, const Lattice& lattice, const Progress& progress, NodeValues& values);
void shepardPass(const ScatteredVolume& volume, const Lattice& lattice, const Progress& progress, NodeValues& values);

enum class RadialKind { Multiquadric, Spline };

/// False if the system has no solution; no value is set then.
bool radialPass(const ScatteredSurface& surface, RadialKind kind, const Lattice& lattice, const Progress& progress,
                NodeValues& values);

/// Values of the quadratic with the given coefficients, 6 for a surface and 10 for a volume.
void quadraticPass(std::span<const double> coefficients, const Lattice& lattice, const Progress& progress,
                   NodeValues& values);

}  // namespace tessaplot::numerics

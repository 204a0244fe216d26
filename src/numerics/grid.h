#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "numerics/parallel_pieces.h"
#include "numerics/poly_fit.h"
#include "numerics/scattered_points.h"

namespace tessaplot::numerics {

/// Where a surface grid goes: columns of (StepsX+1)*(StepsY+1) elements with node (i, j) at i + (StepsX+1)*j. The
/// curvilinear columns may be empty for Cartesian points.
struct SurfaceNodes {
    std::span<double> x, y, z, c;  ///< `Reg3DX` to `Reg3DC`.
    std::span<double> a, b, d;     ///< `Reg3DA`, `Reg3DB`, `Reg3DD`.
};

/// Where a volume grid goes: columns of (StepsX+1)*(StepsY+1)*(StepsZ+1) elements with node (i, j, k) at
/// i + (StepsX+1)*(j + (StepsY+1)*k).
struct VolumeNodes {
    std::span<double> x, y, z, v, c;  ///< `Reg4DX` to `Reg4DC`.
};

/// How a gridding run ended.
struct GridResult {
    /// False if a radial method stopped the run; nodes that it did not reach keep their values.
    bool complete = true;
    /// What to tell a person about a run that stopped; may be empty even then.
    std::string_view message;
    /// The fit of methods 5 and 103.
    std::optional<QuadraticFit> fit;
};

/// Brings scattered points to the lattice of the surface by `SurfaceGridMethod`: 1 `NDS` and `NDSC` of up to 5 points,
/// 2 `Shepard`, 3 `RBF`, 4 `TPS`, 5 `PolyFit`, which gives value and colour alike; any other leaves both at 0.
///
/// A node's value and colour are those of the named routine, bit for bit, but systems are solved once and nodes run on
/// all cores. A node that `NDS` leaves unset takes the value of the node before it, 0 at first, the second index
/// running fastest. As value and colour have one matrix in `RBF` and `TPS`, no colour fails where the values did not.
///
/// `progress` may be empty; what it throws to cancel comes through, with the nodes in any state. Throws DivisionByZero
/// for StepsX or StepsY of 1, SubscriptOutOfRange for columns too short for the grid and beyond the limits of the
/// routines, BadInput for columns of unequal length, and what the routines throw.
GridResult gridSurface(const ScatteredSurface& surface, int method, const Progress& progress,
                       const SurfaceNodes& nodes);

/// Brings scattered points to the lattice of the volume by `VolumeGridMethod`: 101 `NDS4D` of up to 5 points, 102
/// `Shepard4D`, 103 `PolyFit4D`; any other leaves the value at 0. The colour is the value. Otherwise as `gridSurface`.
GridResult gridVolume(const ScatteredVolume& volume, int method, const Progress& progress, const VolumeNodes& nodes);

}  // namespace tessaplot::numerics

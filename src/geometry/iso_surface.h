#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "base/checked_array.h"

namespace tessaplot::geometry {

/// The highest node index along each axis of a volume whose iso-surface is wanted.
inline constexpr int maxIsoIndex = 100;

/// A position or a direction along the three coordinates of a volume.
struct IsoPoint {
    float x = 0;
    float y = 0;
    float z = 0;
    friend bool operator==(const IsoPoint&, const IsoPoint&) = default;
};

/// A corner of the surface: the unit normal, which points towards lower values, and the position.
struct IsoVertex {
    IsoPoint normal;
    IsoPoint position;
    friend bool operator==(const IsoVertex&, const IsoVertex&) = default;
};

/// A surface as triangles over shared vertices, one for each crossed edge of the volume, in no order to rely on.
struct IsoMesh {
    std::vector<IsoVertex> vertices;
    /// Indices of `vertices`, in the order in which triangles and their corners are to be drawn.
    std::vector<std::array<std::uint32_t, 3>> triangles;
};

/// The surface on which the values of a volume equal `isoValue`, by marching cubes (W. E. Lorensen and H. E. Cline,
/// "Marching cubes: a high resolution 3D surface construction algorithm", Computer Graphics 21, 1987).
///
/// `nx`, `ny` and `nz` are the highest node indices along the three axes, from index 0. `X`, `Y`, `Z` are the
/// coordinates of the nodes and `V` their values; the arrays may be larger than that. Everything is rounded to 32-bit
/// floats first. Triangles come cell by cell, the first index outermost and the third innermost.
///
/// Normals are central differences of the value over the indices, low minus high; at a face of the volume, and beside a
/// node without data, the node itself stands for the missing neighbour. A node has no data if its value is the marker
/// of missing data, a not-a-number or not finite as a 32-bit float; the cells round it stay empty, and triangles that
/// would need a node with such a coordinate are left out.
///
/// Throws SubscriptOutOfRange for more than `maxIsoIndex` along an axis or indices beyond the bounds of an array,
/// DivisionByZero for a normal that vanishes between two opposite ones, Overflow for differences beyond 32-bit floats.
IsoMesh IsoSurface(int nx, int ny, int nz, const base::CheckedArray<double>& X, const base::CheckedArray<double>& Y,
                   const base::CheckedArray<double>& Z, const base::CheckedArray<double>& V, double isoValue);

/// The point between `p1` and `p2` where the value passes `isoValue`, if it is `va` at `p1` and `vb` at `p2`. It is
/// `p1` if |va| equals the level or `va` equals `vb`, else `p2` if |vb| equals the level: magnitudes, so that a corner
/// at the negative of the level counts as one at the level.
IsoPoint EdgePoint(const IsoPoint& p1, const IsoPoint& p2, float va, float vb, float isoValue);

}  // namespace tessaplot::geometry

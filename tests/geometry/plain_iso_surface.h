#pragma once

#include <array>
#include <vector>

#include "geometry/iso_surface.h"

namespace tessaplot::geometry::test {

using Array = base::CheckedArray<double>;

/// Nodes on a regular lattice with a value at each.
struct Volume {
    int nx, ny, nz;
    Array X{"X"}, Y{"Y"}, Z{"Z"}, V{"V"};

    /// Nodes 0 to each highest index over a cube from -1 to 1, all values 0; `spare` more elements along each axis.
    Volume(int highestI, int highestJ, int highestK, int spare = 0);

    template <class Field>
    Volume& fill(Field&& field) {
        for (int i = 0; i <= nx; ++i)
            for (int j = 0; j <= ny; ++j)
                for (int k = 0; k <= nz; ++k)
                    V(i, j, k) = field(X(i, j, k), Y(i, j, k), Z(i, j, k));
        return *this;
    }
};

using IsoTriangle = std::array<IsoVertex, 3>;

/// The iso-surface with a record for every node and every cell, all normals made first and each cell done by itself.
std::vector<IsoTriangle> plainIsoSurface(const Volume& volume, double isoValue);

}  // namespace tessaplot::geometry::test

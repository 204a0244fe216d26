#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/checked_array.h"
#include "base/missing_value.h"
#include "data/data_kind.h"
#include "data/data_panel.h"
#include "data/scaling.h"
#include "numerics/poly_fit.h"
#include "platform/desktop.h"

namespace tessaplot::data {

using Array = base::CheckedArray<double>;

/// Marks a node without data; it takes part in extents and is never scaled.
using base::missingValue;

/// The numbers behind the graphs: the scattered points as they were entered and the regular grid that plots draw from.
/// Bounds of all arrays run from 0 to the count inclusive; the last element of each is spare and 0.
class ClsData {
 public:
    int DataType = 0;  ///< 1 regular, 2 irregular.
    int DataDim = 0;   ///< 1 surface, 2 volume.
    int StepsX = 0;    ///< Grid nodes along each axis.
    int StepsY = 0;
    int StepsZ = 0;
    int Points = 0;
    double MinX = 0, MaxX = 0, MinY = 0, MaxY = 0, MinZ = 0, MaxZ = 0;
    double MInv = 0, MaxV = 0;
    double MinC = 0, MaxC = 0;
    double MinA = 0, MaxA = 0, MinB = 0, MaxB = 0;

    Array Reg3DX{"Reg3DX"}, Reg3DY{"Reg3DY"}, Reg3DZ{"Reg3DZ"}, Reg3DC{"Reg3DC"};
    Array Reg3DA{"Reg3DA"}, Reg3DB{"Reg3DB"}, Reg3DD{"Reg3DD"};
    Array Reg4DX{"Reg4DX"}, Reg4DY{"Reg4DY"}, Reg4DZ{"Reg4DZ"}, Reg4DV{"Reg4DV"}, Reg4DC{"Reg4DC"};
    Array Reg4DA{"Reg4DA"}, Reg4DB{"Reg4DB"};  ///< Never allocated.
    Array Irreg3DX{"Irreg3DX"}, Irreg3DY{"Irreg3DY"}, Irreg3DZ{"Irreg3DZ"}, Irreg3DC{"Irreg3DC"};
    Array Irreg4DX{"Irreg4DX"}, Irreg4DY{"Irreg4DY"}, Irreg4DZ{"Irreg4DZ"}, Irreg4DV{"Irreg4DV"};

    /// How well the quadratic of gridding methods 5 and 103 meets the points; empty after other methods.
    std::optional<numerics::FitStatistics> fit;

    /// Fills the set from the panel, grids irregular kinds and scales everything into the scene. A failure leaves the
    /// set and `scaling` as they were. Throws Failure for counts beyond limits, numbers out of range, a zero range.
    void GetData(const DataPanel& panel, Scaling& scaling, const GriddingChoice& gridding,
                 const platform::Desktop& desktop);

    /// Fills the set from the panel's irregular data and grids them, without scaling: the lattice runs over the limits
    /// as they were typed. Throws Failure as `GetData` does.
    void GetLattice(const DataPanel& panel, const GriddingChoice& gridding, const platform::Desktop& desktop);

    /// Recomputes the extents from the grid arrays.
    void GetBox();

    /// Scales the coordinates to ten scene units and sets the factors; to be run once a fill. Throws DivisionByZero
    /// with a message that names the range that is zero.
    void Normalize(Scaling& scaling);

    /// Brings the scattered points to the grid by the chosen method.
    void Grid(DataKind kind, const GriddingChoice& gridding, const platform::Desktop& desktop);

    std::size_t bytes() const;
};

/// The statistics of a fit in one line.
std::string fitReport(const numerics::FitStatistics& fit);

}  // namespace tessaplot::data

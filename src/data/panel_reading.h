#pragma once

#include "base/number_text.h"
#include "data/data_panel.h"
#include "data/data_set.h"

namespace tessaplot::data {

/// The numbers of the panel's cells, column by column.
class CellReader {
 public:
    explicit CellReader(const DataPanel& panel) : panel_(panel) {}
    double operator()(int column, int row) const { return base::TextValue(panel_.cell(column, row)); }

 private:
    const DataPanel& panel_;
};

/// Allocates the regular grid for the counts that the data set has.
void allocateSurfaceGrid(ClsData& data, DataKind kind);
void allocateVolumeGrid(ClsData& data);

/// Fills the regular grid and the ranges of colours and angles with the panel's regular data.
void readRegular(ClsData& data, const DataPanel& panel);

/// Fills points and limits with the panel's irregular data, angles in radians, and allocates the grid for them.
void readScattered(ClsData& data, const DataPanel& panel);

}  // namespace tessaplot::data

#pragma once

#include <string>
#include <string_view>

#include "data/data_panel.h"

namespace tessaplot::data {

/// A block of cells of the data grid, first and last of each included; rows and columns count from 1.
struct CellRange {
    int firstRow = 0;
    int firstColumn = 0;
    int lastRow = 0;
    int lastColumn = 0;

    bool empty() const { return firstRow < 1 || firstColumn < 1 || lastRow < firstRow || lastColumn < firstColumn; }
};

/// The texts of the cells as a table for the clipboard: tabs between the cells of a row, a line end after each row.
/// Throws SubscriptOutOfRange past the store.
std::string copyCells(const DataPanel& panel, const CellRange& cells);

/// Writes a table of the clipboard into the grid from a cell on; the grid grows to hold it. Throws BadInput, with the
/// panel unchanged, for a table that the store has no room for or that is none.
void pasteCells(DataPanel& panel, int row, int column, std::string_view text);

/// Empties the cells. Throws SubscriptOutOfRange past the store.
void clearCells(DataPanel& panel, const CellRange& cells);

}  // namespace tessaplot::data

#include <string>

#include "base/failure.h"
#include "data/grid_editing.h"
#include "fuzz/property.h"
#include "fuzz/targets.h"

namespace tessaplot::fuzz {

namespace {

/// The place for a first byte: mostly at the top, sometimes around the last row of the store.
int rowOf(char byte) {
    const int row = static_cast<unsigned char>(byte);
    return row < 200 ? row : data::DataPanel::maximumRows - 250 + row;
}

}  // namespace

void paste_cells(std::string_view bytes) {
    if (bytes.size() < 2) return;
    const int row = rowOf(bytes[0]);
    const int column = static_cast<unsigned char>(bytes[1]) % 8;
    bytes.remove_prefix(2);
    data::DataPanel panel;
    try {
        data::pasteCells(panel, row, column, bytes);
    } catch (const base::Failure&) {
        require(panel.gridRows() == data::DataPanel().gridRows(), "what cannot be pasted leaves the grid");
        return;
    }
    if (bytes.empty()) return;
    const data::CellRange all{row, 1, panel.gridRows() - 1, data::DataPanel::columns};
    const std::string copied = data::copyCells(panel, all);
    data::DataPanel again;
    data::pasteCells(again, row, 1, copied);
    require(data::copyCells(again, all) == copied, "cells that were copied are pasted as they are");
}

}  // namespace tessaplot::fuzz

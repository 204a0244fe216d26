#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "data/cell_texts.h"
#include "data/data_kind.h"

namespace tessaplot::data {

/// The data panel without its widgets: the kind, ten text boxes and the text grid. It is the master copy of the data.
class DataPanel {
 public:
    static constexpr int maximumRows = 20000;           ///< Data rows of the grid store.
    static constexpr int columns = CellTexts::columns;  ///< Data columns, numbered from 1; column 0 is the index.

    DataKind kind() const { return kind_; }
    /// Changes labels and headers; all text stays in place.
    void selectKind(DataKind kind) { kind_ = kind; }

    /// Text of box 1 to 10.
    const std::string& Text(int box) const;
    void setText(int box, std::string text);

    /// Rows of the grid with the header row, columns with the index column.
    int gridRows() const { return gridRows_; }
    int gridColumns() const { return gridColumns_; }
    /// Throws a Failure that names the limit for sizes outside 1 to 65536.
    void setGridSize(int rows, int columnCount);

    /// The stored text, valid until a cell changes; row and column from 1. Rows past the store throw
    /// SubscriptOutOfRange.
    std::string_view cell(int column, int row) const {
        checkCell(column, row);
        return cells_.at(static_cast<std::size_t>(row) - 1, static_cast<std::size_t>(column) - 1);
    }
    void setCell(int column, int row, std::string_view text) {
        checkCell(column, row);
        cells_.set(static_cast<std::size_t>(row) - 1, static_cast<std::size_t>(column) - 1, text);
    }

    /// Puts an empty row or column before the given one, counted from 1; texts move on and the grid grows as far as the
    /// store goes. Throws BadInput, with nothing changed, if a text would be pushed out of the store.
    void insertRow(int row);
    void insertColumn(int column);
    /// Takes rows or columns out, first and last included; texts behind them move up and the grid shrinks.
    void deleteRows(int first, int last);
    void deleteColumns(int first, int last);

    /// Makes room for that many rows at once.
    void reserveRows(int rows);

    /// Fills the first columns of all rows of the grid, row by row, with the given places of `text`. Where these end,
    /// the cells are blank.
    void fillRows(std::string text, std::span<const CellTexts::Place> places, int columnCount);

    /// Answers the virtual grid: false for the header row and the index column, which the store does not serve.
    bool GetCellText(int row, int column, std::string& text) const;
    bool SetCellText(int row, int column, std::string_view text);

    /// What stands in the index column: "i,j", "i,j,k" or a number, empty before a layout.
    std::string indexText(int row) const;

    /// Shapes the grid for the counts in the boxes; the texts stay in the store and reappear under the new shape.
    /// Throws a Failure that names the limit for counts beyond the store.
    void layOut();

    /// Validates the boxes and cleans every cell; the first fault sets `message` and returns false.
    bool CheckData(std::string& message);

    /// Data rows that the counts in the boxes ask for. Throws a Failure for more than the store holds.
    int dataRows() const;
    /// The integer that box 1 to 10 holds, by its numeric prefix.
    int count(int box) const;
    /// The number that box 1 to 10 holds, by its numeric prefix.
    double number(int box) const;

    /// Bytes held by the cells.
    std::size_t bytes() const;

 private:
    enum class IndexForm { None, Number, Pair, Triple };

    static void checkCell(int column, int row) {
        if (column < 1 || column > columns || row < 1 || row > maximumRows) [[unlikely]]
            failCell(column, row);
    }
    [[noreturn]] static void failCell(int column, int row);
    bool checkCounts(std::string& message);
    bool cleanCells(std::string& message);

    DataKind kind_ = DataKind::RegularSurface;
    std::array<std::string, 10> boxes_;
    CellTexts cells_;  ///< Row n of the grid at n - 1, as far as any was written.
    int gridRows_ = 101;
    int gridColumns_ = 5;
    IndexForm indexForm_ = IndexForm::None;
    int indexColumns_ = 0;  ///< LastRowsY of the shape that the index column tells.
    int indexLayers_ = 0;   ///< LastRowsZ.
};

}  // namespace tessaplot::data

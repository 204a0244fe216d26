#include "data/grid_editing.h"

#include <algorithm>
#include <vector>

#include "base/failure.h"

namespace tessaplot::data {

namespace {

/// No spreadsheet holds more text in a cell; a clipboard that does holds no table.
constexpr std::size_t longestCell = 32767;

[[noreturn]] void refuse(const std::string& why) {
    throw base::Failure(base::FailureCode::BadInput, why);
}

/// Takes what stands before the first `separator` off the text, and the separator.
std::string_view takeUntil(std::string_view& text, char separator) {
    const std::size_t end = text.find(separator);
    const std::string_view taken = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return taken;
}

std::string_view withoutReturns(std::string_view cell) {
    while (cell.ends_with('\r'))
        cell.remove_suffix(1);
    return cell;
}

std::size_t cellCount(std::string_view line) {
    return static_cast<std::size_t>(std::ranges::count(line, '\t')) + 1;
}

std::vector<std::string_view> cellsOf(std::string_view line) {
    std::vector<std::string_view> cells(cellCount(line));
    for (std::string_view& cell : cells)
        cell = withoutReturns(takeUntil(line, '\t'));
    return cells;
}

std::vector<std::string_view> linesOf(std::string_view text, std::size_t atMost) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        if (lines.size() == atMost)
            refuse("The data grid holds at most " + std::to_string(DataPanel::maximumRows) +
                   " rows; the table on the clipboard does not fit in from here.");
        lines.push_back(takeUntil(text, '\n'));
    }
    return lines;
}

void requireFits(std::string_view line, std::size_t room) {
    if (cellCount(line) > room)
        refuse("The table on the clipboard has " + std::to_string(cellCount(line)) +
               " columns; from here on the data grid has " + std::to_string(room) + ".");
    if (std::ranges::any_of(cellsOf(line), [](std::string_view cell) { return cell.size() > longestCell; }))
        refuse("The clipboard holds no table.");
}

}  // namespace

std::string copyCells(const DataPanel& panel, const CellRange& cells) {
    std::string text;
    for (int row = cells.firstRow; row <= cells.lastRow; ++row) {
        for (int column = cells.firstColumn; column <= cells.lastColumn; ++column) {
            if (column > cells.firstColumn) text += '\t';
            text += panel.cell(column, row);
        }
        text += '\n';
    }
    return text;
}

void pasteCells(DataPanel& panel, int row, int column, std::string_view text) {
    const auto rowsLeft = static_cast<std::size_t>(std::max(0, DataPanel::maximumRows - row + 1));
    const auto columnsLeft = static_cast<std::size_t>(std::max(0, DataPanel::columns - column + 1));
    const std::vector<std::string_view> lines = linesOf(text, rowsLeft);
    std::size_t widest = 0;
    for (const std::string_view line : lines) {
        requireFits(line, columnsLeft);
        widest = std::max(widest, cellCount(line));
    }
    if (!lines.empty()) static_cast<void>(panel.cell(column, row));
    panel.setGridSize(std::max(panel.gridRows(), row + static_cast<int>(lines.size())),
                      std::max(panel.gridColumns(), column + static_cast<int>(widest)));
    for (const std::string_view line : lines) {
        int at = column;
        for (const std::string_view cell : cellsOf(line))
            panel.setCell(at++, row, cell);
        ++row;
    }
}

void clearCells(DataPanel& panel, const CellRange& cells) {
    panel.cell(cells.lastColumn, cells.lastRow);
    for (int row = cells.firstRow; row <= cells.lastRow; ++row)
        for (int column = cells.firstColumn; column <= cells.lastColumn; ++column)
            if (!panel.cell(column, row).empty()) panel.setCell(column, row, {});
}

}  // namespace tessaplot::data

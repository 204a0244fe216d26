#include "data/data_panel.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "base/failure.h"
#include "base/number_text.h"

namespace tessaplot::data {

namespace {

constexpr int maximumGridSize = 65536;

bool isBlank(const CellTexts::Row& row) {
    return std::ranges::all_of(row, &CellTexts::Place::isBlank);
}

[[noreturn]] void failFull(std::string_view what) {
    throw base::Failure(base::FailureCode::BadInput,
                        "The " + std::string(what) + " of the data grid is not empty; its text would be lost.");
}

}  // namespace

const std::string& DataPanel::Text(int box) const {
    if (box < 1 || box > 10) base::failSubscript("Text", box, 1, 10);
    return boxes_[static_cast<std::size_t>(box) - 1];
}

void DataPanel::setText(int box, std::string text) {
    if (box < 1 || box > 10) base::failSubscript("Text", box, 1, 10);
    boxes_[static_cast<std::size_t>(box) - 1] = std::move(text);
}

void DataPanel::setGridSize(int rows, int columnCount) {
    if (rows < 1 || rows > maximumGridSize || columnCount < 1 || columnCount > maximumGridSize)
        throw base::Failure(base::FailureCode::BadInput,
                            "The number of rows or columns of the grid must be a value between 1 and 65536.");
    gridRows_ = rows;
    gridColumns_ = columnCount;
}

void DataPanel::failCell(int column, int row) {
    if (column < 1 || column > columns) base::failSubscript("The columns of the data grid", column, 1, columns);
    base::failSubscript("The rows of the data grid", row, 1, maximumRows);
}

void DataPanel::insertRow(int row) {
    checkCell(1, row);
    std::vector<CellTexts::Row>& rows = cells_.rows();
    const auto at = static_cast<std::ptrdiff_t>(row) - 1;
    if (at < static_cast<std::ptrdiff_t>(rows.size())) {
        if (rows.size() == maximumRows) {
            if (!isBlank(rows.back())) failFull("last row");
            rows.pop_back();
        }
        rows.insert(rows.begin() + at, CellTexts::Row{});
    }
    if (gridRows_ <= maximumRows) ++gridRows_;
}

void DataPanel::deleteRows(int first, int last) {
    checkCell(1, first);
    checkCell(1, last);
    std::vector<CellTexts::Row>& rows = cells_.rows();
    const auto stored = static_cast<std::ptrdiff_t>(rows.size());
    const std::ptrdiff_t from = std::min<std::ptrdiff_t>(first - 1, stored);
    const std::ptrdiff_t to = std::min<std::ptrdiff_t>(last, stored);
    if (from < to) rows.erase(rows.begin() + from, rows.begin() + to);
    gridRows_ = std::max(1, gridRows_ - (last - first + 1));
}

void DataPanel::insertColumn(int column) {
    checkCell(column, 1);
    std::vector<CellTexts::Row>& rows = cells_.rows();
    if (!std::ranges::all_of(rows, [](const CellTexts::Row& row) { return row.back().isBlank(); }))
        failFull("last column");
    for (CellTexts::Row& row : rows)
        std::rotate(row.begin() + column - 1, row.end() - 1, row.end());
    if (gridColumns_ <= columns) ++gridColumns_;
}

void DataPanel::deleteColumns(int first, int last) {
    checkCell(first, 1);
    checkCell(last, 1);
    for (CellTexts::Row& row : cells_.rows()) {
        const auto rest = std::copy(row.begin() + last, row.end(), row.begin() + first - 1);
        std::fill(rest, row.end(), CellTexts::Place{});
    }
    gridColumns_ = std::max(1, gridColumns_ - (last - first + 1));
}

void DataPanel::reserveRows(int rows) {
    if (rows > 0) cells_.rows().reserve(static_cast<std::size_t>(rows));
}

void DataPanel::fillRows(std::string text, std::span<const CellTexts::Place> places, int columnCount) {
    cells_.take(std::move(text));
    std::vector<CellTexts::Row>& rows = cells_.rows();
    const auto rowCount = static_cast<std::size_t>(gridRows_ - 1);
    const auto width = static_cast<std::size_t>(columnCount);
    if (rows.size() < rowCount) rows.resize(rowCount);
    for (std::size_t row = 0; row < rowCount; ++row) {
        const auto given = places.first(std::min(width, places.size()));
        std::fill_n(std::ranges::copy(given, rows[row].begin()).out, width - given.size(), CellTexts::Place{});
        places = places.subspan(given.size());
    }
    cells_.trim();
}

bool DataPanel::GetCellText(int row, int column, std::string& text) const {
    if (row <= 0 || column <= 0) return false;
    text = cell(column, row);
    return true;
}

bool DataPanel::SetCellText(int row, int column, std::string_view text) {
    if (row <= 0 || column <= 0) return false;
    setCell(column, row, text);
    return true;
}

std::string DataPanel::indexText(int row) const {
    if (row < 1 || row >= gridRows_) return {};
    const int n = row - 1;
    switch (indexForm_) {
        case IndexForm::Number:
            return std::to_string(n);
        case IndexForm::Pair:
            return std::to_string(n / indexColumns_) + ',' + std::to_string(n % indexColumns_);
        case IndexForm::Triple:
            return std::to_string(n / indexLayers_ / indexColumns_) + ',' +
                   std::to_string(n / indexLayers_ % indexColumns_) + ',' + std::to_string(n % indexLayers_);
        case IndexForm::None:
            break;
    }
    return {};
}

int DataPanel::count(int box) const {
    return base::TextInteger(Text(box));
}

double DataPanel::number(int box) const {
    return base::TextValue(Text(box));
}

int DataPanel::dataRows() const {
    std::vector<int> counts{count(isIrregular(kind_) ? 3 : 1)};
    if (!isIrregular(kind_)) counts.push_back(count(2));
    if (kind_ == DataKind::RegularVolume) counts.push_back(count(4));
    std::int64_t rows = 1;
    for (const int one : counts) {
        if (one <= 0) return 0;
        rows *= one;
        if (rows > maximumRows)
            throw base::Failure(
                base::FailureCode::SubscriptOutOfRange,
                "The data grid holds at most " + std::to_string(maximumRows) + " rows; the data ask for more.");
    }
    return static_cast<int>(rows);
}

void DataPanel::layOut() {
    gridRows_ = dataRows() + 1;
    gridColumns_ = columns + 1;
    indexForm_ = IndexForm::None;
    if (gridRows_ == 1) return;
    if (isIrregular(kind_)) {
        indexForm_ = IndexForm::Number;
    } else if (isVolume(kind_)) {
        indexForm_ = IndexForm::Triple;
        indexColumns_ = count(2);
        indexLayers_ = count(4);
    } else {
        indexForm_ = IndexForm::Pair;
        indexColumns_ = count(2);
    }
}

std::size_t DataPanel::bytes() const {
    return cells_.bytes();
}

}  // namespace tessaplot::data

#include <string>
#include <string_view>
#include <vector>

#include "base/number_text.h"
#include "data/data_panel.h"

namespace tessaplot::data {

namespace {

constexpr std::string_view illegalData = "Illegal data exist.";

/// The least that a box may count, and what to tell of less.
struct CountRule {
    int box;
    int least;
    std::string_view message;
};

constexpr CountRule pointsRule{3, 3, "The number of points must larger than 3."};
constexpr std::string_view rowsXMessage = "The number of Rows X must larger than 0.";
constexpr std::string_view rowsYMessage = "The number of Rows Y must larger than 0.";
constexpr std::string_view rowsZMessage = "The number of Rows Z must larger than 0.";

std::vector<CountRule> countRules(DataKind kind) {
    switch (kind) {
        case DataKind::RegularSurface:
            return {{1, 1, rowsXMessage}, {2, 1, rowsYMessage}};
        case DataKind::IrregularSurface:
            return {pointsRule, {4, 1, rowsXMessage}, {7, 1, rowsYMessage}};
        case DataKind::RegularVolume:
            return {{1, 1, rowsXMessage}, {2, 1, rowsYMessage}, {4, 1, rowsZMessage}};
        case DataKind::IrregularVolume:
            return {pointsRule, {4, 1, rowsXMessage}, {7, 1, rowsYMessage}, {10, 1, rowsZMessage}};
        default:
            return {};
    }
}

std::vector<int> cleanedBoxes(DataKind kind) {
    if (kind == DataKind::IrregularSurface) return {1, 2, 5, 6};
    if (kind == DataKind::IrregularVolume) return {1, 2, 5, 6, 8, 9};
    return {};
}

}  // namespace

bool DataPanel::CheckData(std::string& message) {
    return checkCounts(message) && cleanCells(message);
}

bool DataPanel::checkCounts(std::string& message) {
    std::string checked;
    for (const CountRule& rule : countRules(kind_)) {
        if (!base::CheckNumberText(Text(rule.box), checked)) {
            message = illegalData;
            return false;
        }
        if (base::TextValue(checked) < rule.least) {
            message = rule.message;
            return false;
        }
    }
    for (const int box : cleanedBoxes(kind_)) {
        if (!base::CleanNumberText(Text(box), checked)) {
            message = illegalData;
            return false;
        }
        setText(box, checked);
    }
    return true;
}

bool DataPanel::cleanCells(std::string& message) {
    std::string cleaned;
    for (int row = 1; row < gridRows_; ++row) {
        for (int column = 1; column < gridColumns_; ++column) {
            if (base::IsCleanNumberText(cell(column, row))) continue;
            if (!base::CleanNumberText(cell(column, row), cleaned)) {
                message = illegalData;
                return false;
            }
            setCell(column, row, cleaned);
        }
    }
    return true;
}

}  // namespace tessaplot::data

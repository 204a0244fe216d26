#include "data/data_panel.h"

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "base/failure.h"
#include "data/grid_editing.h"

namespace tessaplot::data {
namespace {

TEST(DataPanel, keepsTextsWhenKindOrShapeChanges) {
    DataPanel panel;
    panel.setText(1, "2");
    panel.setText(2, "3");
    panel.layOut();
    EXPECT_EQ(panel.gridRows(), 7);
    EXPECT_EQ(panel.indexText(1), "0,0");
    EXPECT_EQ(panel.indexText(6), "1,2");
    panel.setCell(3, 6, "last");
    panel.setText(2, "1");
    panel.layOut();
    EXPECT_EQ(panel.gridRows(), 3);
    panel.selectKind(DataKind::RegularVolume);
    panel.setText(2, "3");
    panel.setText(4, "2");
    panel.layOut();
    EXPECT_EQ(panel.gridRows(), 13);
    EXPECT_EQ(panel.indexText(12), "1,2,1");
    EXPECT_EQ(panel.cell(3, 6), "last");
    panel.selectKind(DataKind::IrregularVolume);
    panel.setText(3, "5");
    panel.layOut();
    EXPECT_EQ(panel.indexText(5), "4");
    EXPECT_EQ(panel.indexText(6), "");
}

TEST(DataPanel, servesOnlyDataCellsAndBoundsTheStore) {
    DataPanel panel;
    std::string text = "untouched";
    EXPECT_FALSE(panel.GetCellText(0, 1, text));
    EXPECT_FALSE(panel.SetCellText(3, 0, "x"));
    EXPECT_EQ(text, "untouched");
    EXPECT_TRUE(panel.SetCellText(20000, 4, "x"));
    EXPECT_TRUE(panel.GetCellText(20000, 4, text));
    EXPECT_EQ(text, "x");
    EXPECT_THROW(panel.SetCellText(20001, 1, "x"), base::Failure);
    EXPECT_THROW(panel.cell(5, 1), base::Failure);
    panel.setGridSize(65536, 5);
    EXPECT_THROW(panel.setGridSize(65537, 5), base::Failure);
    EXPECT_THROW(panel.setGridSize(5, 0), base::Failure);
}

TEST(DataPanel, refusesLayoutsBeyondTheStoreAndKeepsItsShape) {
    DataPanel panel;
    panel.setText(1, "200");
    panel.setText(2, "101");
    EXPECT_THROW(panel.layOut(), base::Failure);
    EXPECT_EQ(panel.gridRows(), 101);
    panel.setText(1, "-3");
    panel.setText(2, "-4");
    panel.layOut();
    EXPECT_EQ(panel.gridRows(), 1) << "two negative counts are no data";
}

/// The texts of a panel, each a string of its own.
using PlainTable = std::vector<std::array<std::string, DataPanel::columns>>;

void requireSameTexts(const DataPanel& panel, const PlainTable& plain) {
    for (std::size_t row = 0; row < plain.size(); ++row)
        for (int column = 1; column <= DataPanel::columns; ++column)
            ASSERT_EQ(panel.cell(column, static_cast<int>(row) + 1), plain[row][static_cast<std::size_t>(column) - 1]);
}

TEST(DataPanel, keepsEachTextWhileOthersComeAndGo) {
    constexpr int rows = 50;
    std::mt19937 random(3);
    const auto anyOf = [&random](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
    DataPanel panel;
    PlainTable plain(rows);
    for (int step = 0; step < 20000; ++step) {
        const int row = anyOf(rows);
        const int column = anyOf(DataPanel::columns);
        std::string& text = plain[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
        switch (anyOf(100)) {
            case 0:
                panel.insertRow(row + 1);
                plain.insert(plain.begin() + row, PlainTable::value_type{});
                break;
            case 1:
                panel.deleteRows(row + 1, row + 1);
                plain.erase(plain.begin() + row);
                plain.resize(std::max<std::size_t>(plain.size(), rows));
                break;
            case 2:
                panel.deleteColumns(column + 1, column + 1);
                for (auto& cells : plain) {
                    std::rotate(cells.begin() + column, cells.begin() + column + 1, cells.end());
                    cells.back().clear();
                }
                break;
            case 3:
                panel = DataPanel(panel);
                requireSameTexts(panel, plain);
                break;
            case 4:
                text += panel.cell(1, 1);
                panel.setCell(column + 1, row + 1, text);
                break;
            default:
                text = std::string(static_cast<std::size_t>(anyOf(200)), static_cast<char>('a' + anyOf(26)));
                panel.setCell(column + 1, row + 1, text);
        }
    }
    requireSameTexts(panel, plain);
    EXPECT_LT(panel.bytes(), 400000U) << "what is replaced goes at last";
}

TEST(DataPanel, validatesBoxesInOrderAndSaysWhichOneIsWrong) {
    const std::string illegal = "Illegal data exist.";
    const struct {
        DataKind kind;
        std::vector<std::pair<int, const char*>> boxes;
        std::string message;
    } cases[]{
        {DataKind::RegularSurface, {{1, "abc"}, {2, "0"}}, illegal},
        {DataKind::RegularSurface, {{1, "+5"}, {2, "2"}}, illegal},
        {DataKind::RegularSurface, {{1, "0.5"}, {2, "2"}}, "The number of Rows X must larger than 0."},
        {DataKind::RegularSurface, {{1, "2"}, {2, "-1"}}, "The number of Rows Y must larger than 0."},
        {DataKind::IrregularSurface, {{3, "2"}}, "The number of points must larger than 3."},
        {DataKind::IrregularSurface, {{3, "3"}, {4, "1"}, {7, "0"}}, "The number of Rows Y must larger than 0."},
        {DataKind::IrregularSurface, {{3, "3"}, {4, "1"}, {7, "1"}, {5, "x"}}, illegal},
        {DataKind::RegularVolume, {{1, "1"}, {2, "1"}, {4, "0"}}, "The number of Rows Z must larger than 0."},
        {DataKind::IrregularVolume,
         {{3, "9"}, {4, "1"}, {7, "1"}, {10, "0"}},
         "The number of Rows Z must larger than 0."},
        {DataKind::RegularSpherical, {{1, "abc"}}, ""},
    };
    for (const auto& one : cases) {
        DataPanel panel;
        panel.selectKind(one.kind);
        for (const auto& [box, text] : one.boxes)
            panel.setText(box, text);
        std::string message;
        EXPECT_EQ(panel.CheckData(message), one.message.empty());
        EXPECT_EQ(message, one.message);
    }
}

TEST(DataPanel, validationCleansCellsInRowOrder) {
    DataPanel panel;
    panel.setText(1, "2");
    panel.setText(2, "1");
    panel.layOut();
    pasteCells(panel, 1, 1, "1,5\t12a\t 4 2 ");
    std::string message;
    EXPECT_TRUE(panel.CheckData(message));
    EXPECT_EQ(copyCells(panel, {1, 1, 2, 4}), "1.5\t12\t42\t0\n0\t0\t0\t0\n");
    panel.setCell(1, 2, "a1");
    EXPECT_FALSE(panel.CheckData(message));
    EXPECT_EQ(message, "Illegal data exist.");
}

}  // namespace
}  // namespace tessaplot::data

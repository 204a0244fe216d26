#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/text_table.h"
#include "scripted_window.h"

namespace tessaplot::ui {
namespace {

class DataCommands : public ScriptedWindow {
 protected:
    void SetUp() override {
        ScriptedWindow::SetUp();
        fill("a\tb\tc\nd\te\tf\n");
    }
    /// Puts a table into an otherwise empty grid.
    void fill(const std::string& table) {
        state.panel = {};
        paste(1, 1, table);
    }
    void select(int firstRow, int firstColumn, int lastRow, int lastColumn) {
        window.fgdGrid_Select({firstRow, firstColumn, lastRow, lastColumn});
    }
    void paste(int row, int column, const std::string& text) {
        select(row, column, row, column);
        clipboard = text;
        window.run("mnuGEPaste");
    }
    /// All cells of the first rows.
    std::string table(int rows, int columns = 4) const { return data::copyCells(state.panel, {1, 1, rows, columns}); }
    /// Four scattered points.
    void fillPoints() {
        state.panel = {};
        data::importText(state.panel, "I3 4 0 0 1 4 0 2 0 3 3 5 6 5");
        const char* const lattice[]{"0", "8", "4", "4", "0", "8", "4"};
        for (int box = 1; box <= 7; ++box)
            state.panel.setText(box, lattice[box - 1]);
    }
};

TEST_F(DataCommands, cellsAreCopiedCutClearedAndPastedAsTabbedText) {
    select(1, 2, 2, 3);
    window.run("mnuGECopy");
    EXPECT_EQ(clipboard, "b\tc\ne\tf\n");
    window.run("mnuGEDelete");
    EXPECT_EQ(table(2), "a\t\t\t\nd\t\t\t\n");
    paste(2, 3, "1\t2\r\n\t3");
    EXPECT_EQ(table(3), "a\t\t\t\nd\t\t1\t2\n\t\t\t3\n") << "line ends of other systems, and none at the end";
    select(2, 1, 2, 4);
    window.run("mnuGECutIt");
    EXPECT_EQ(clipboard, "d\t\t1\t2\n");
    paste(3, 1, clipboard);
    EXPECT_EQ(table(3), "a\t\t\t\n\t\t\t\nd\t\t1\t2\n");
    paste(3, 1, "7\t");
    EXPECT_EQ(table(3).substr(9), "7\t\t1\t2\n") << "an empty last cell is one";
    EXPECT_TRUE(asked.empty());
}

TEST_F(DataCommands, pastingGrowsTheGridButNothingIsLostPastTheStore) {
    paste(100, 1, "1\n2\n3");
    EXPECT_EQ(state.panel.gridRows(), 103);
    const std::string before = table(102);
    for (const auto& [row, column, text] : {std::tuple(1, 3, std::string("1\t2\t3")),
                                            {19999, 1, "1\n2\n3"},
                                            {1, 1, std::string(100 << 20, '\n')},
                                            {1, 1, std::string(1 << 20, '\t')},
                                            {1, 1, std::string(1 << 20, 'x')}}) {
        paste(row, column, text);
        EXPECT_NE(theQuestion(), "");
        EXPECT_TRUE(table(102) == before && state.panel.gridRows() == 103);
    }
    paste(19999, 1, "1\n2");
    EXPECT_EQ(state.panel.gridRows(), 20001);
    EXPECT_EQ(state.panel.cell(1, 20000), "2");
}

TEST_F(DataCommands, rowsAndColumnsAreInsertedAndDeleted) {
    select(2, 2, 2, 2);
    window.run("mnuGEInsertRow");
    EXPECT_EQ(table(3), "a\tb\tc\t\n\t\t\t\nd\te\tf\t\n");
    EXPECT_EQ(state.panel.gridRows(), 102);
    window.run("mnuGEInsertCol");
    EXPECT_EQ(table(3), "a\t\tb\tc\n\t\t\t\nd\t\te\tf\n");
    EXPECT_EQ(state.panel.gridColumns(), 5) << "the grid has its columns";
    window.run("mnuGEInsertCol");
    EXPECT_THAT(asked.back(), testing::HasSubstr("would be lost"));
    EXPECT_EQ(table(3), "a\t\tb\tc\n\t\t\t\nd\t\te\tf\n");
    select(1, 1, 2, 2);
    window.run("mnuGEDelCol");
    EXPECT_EQ(table(3), "b\tc\t\t\n\t\t\t\ne\tf\t\t\n");
    EXPECT_EQ(state.panel.gridColumns(), 3);
    window.run("mnuGEDelRow");
    EXPECT_EQ(table(2), "e\tf\t\t\n\t\t\t\n");
    EXPECT_EQ(state.panel.gridRows(), 100);
    window.run("mnuGEInsertCol");
    EXPECT_EQ(state.panel.gridColumns(), 4);

    asked.clear();
    state.panel.setGridSize(65536, 5);
    select(1, 1, 65535, 4);
    for (const char* command : {"mnuGECopy", "mnuGEDelete", "mnuGEDelRow"})
        window.run(command);
    EXPECT_EQ(asked.size(), 3U) << "rows past the store fail";
    EXPECT_EQ(table(1, 3), "\te\tf\n");
    paste(20000, 1, "end");
    select(1, 1, 1, 1);
    window.run("mnuGEInsertRow");
    EXPECT_EQ(asked.size(), 4U) << "the last row would be lost";
    select(19999, 1, 20000, 1);
    window.run("mnuGEDelRow");
    EXPECT_EQ(state.panel.cell(1, 20000), "");
    window.fgdGrid_Select({});
    window.run("mnuGEPaste");
    EXPECT_THAT(asked.back(), testing::HasSubstr("No cells"));
    window.fgdGrid_RightClick(0, 1);
    window.fgdGrid_RightClick(1, 0);
    EXPECT_EQ(poppedUp, "") << "the menu stands over data cells";
    window.fgdGrid_RightClick(1, 1);
    EXPECT_EQ(poppedUp, "mnuGE");
}

TEST_F(DataCommands, dataLeaveAndEnterAsText) {
    fillPoints();
    chosen = folder / "points.txt";
    window.run("mnuFileOutput");
    EXPECT_EQ(theQuestion(), "Output (*.txt)|*.txt");
    EXPECT_THAT(bytesOf(chosen), testing::StartsWith("\"I3 4 0 0 1 4 0 2 0 3 3 5 6 5 "));
    window.run("mnuFileGridded");
    EXPECT_TRUE(asked.empty()) << "not before the kind is chosen in the panel";
    window.Combo1_Click(1);
    chosen = folder / "grid.txt";
    window.run("mnuFileGridded");
    EXPECT_THAT(bytesOf(chosen), testing::StartsWith("\"R3 4 4 "));

    state.panel = {};
    window.run("mnuFileImport");
    EXPECT_EQ(asked.back(), "Open (*.txt)|*.txt");
    EXPECT_EQ(state.panel.kind(), data::DataKind::RegularSurface);
    EXPECT_EQ(state.panel.gridRows(), 17);
    EXPECT_FALSE(window.isEnabled("mnuFileGridded"));
    chosen = folder / "points.txt";
    window.run("mnuFileImport");
    EXPECT_EQ(state.panel.cell(3, 4), "5");
    EXPECT_TRUE(window.isEnabled("mnuFileGridded"));
}

TEST_F(DataCommands, badDataAreToldAndWriteNothing) {
    fillPoints();
    state.panel.setText(3, "2");
    window.Combo1_Click(1);
    chosen = folder / "none.txt";
    for (const char* command : {"mnuFileOutput", "mnuFileGridded"}) {
        window.run(command);
        EXPECT_EQ(theQuestion(), "Error: The number of points must larger than 3.");
    }
    state.panel.setText(3, "4");
    state.desktop.reportProgress = [](double) { return false; };
    window.run("mnuFileGridded");
    EXPECT_TRUE(asked.empty()) << "who stops a task needs no box";
    EXPECT_EQ(status, "Cancelled.");
    EXPECT_FALSE(std::filesystem::exists(chosen));
    window.run("mnuFileImport");
    EXPECT_THAT(asked.back(), testing::HasSubstr("cannot be read"));
    put(chosen, "Dear reader");
    window.run("mnuFileImport");
    EXPECT_EQ(state.panel.kind(), data::DataKind::IrregularSurface);
    EXPECT_EQ(state.panel.Text(3), "4");
    chosen.clear();
    window.run("mnuFileImport");
    window.run("mnuFileOutput");
    EXPECT_EQ(asked.back(), "Output (*.txt)|*.txt");
}

}  // namespace
}  // namespace tessaplot::ui

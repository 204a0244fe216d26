#include "data/text_table.h"

#include <filesystem>
#include <random>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/failure.h"
#include "base/files.h"
#include "base/number_text.h"

namespace tessaplot::data {
namespace {

/// Scattered points of a kind with limits inside them, and a lattice of 5 by 4 (by 3) nodes.
DataPanel scattered(DataKind kind, int points = 40) {
    DataPanel panel;
    panel.selectKind(kind);
    const char* const boxes[]{"10", "80", "40", "5", "20", "70", "4", "-1", "2.5", "4"};
    for (int box = 1; box <= 10; ++box)
        panel.setText(box, boxes[box - 1]);
    panel.setText(3, std::to_string(points));
    if (kind == DataKind::IrregularVolume) panel.setText(10, "3");
    panel.layOut();
    std::mt19937 random(11);
    const auto between = [&random](double low, double high) {
        return base::generalText(std::uniform_real_distribution<double>(low, high)(random));
    };
    for (int row = 1; row <= points; ++row) {
        panel.setCell(1, row, between(0, 90));
        panel.setCell(2, row, between(1, 90));
        panel.setCell(3, row, between(-2, 3));
        panel.setCell(4, row, between(5, 9));
    }
    return panel;
}

TEST(TextImport, everyTagInEitherCaseSetsKindSizesAndCells) {
    const struct {
        const char* tag;
        DataKind kind;
        int sizes;
        int columns;
    } cases[] = {
        {"R3", DataKind::RegularSurface, 2, 3},        {"rd", DataKind::RegularSurface, 2, 3},
        {"Rc", DataKind::RegularSurface, 2, 4},        {"r3c", DataKind::RegularCylindrical, 2, 3},
        {"RCC", DataKind::RegularCylindrical, 2, 4},   {"R3s", DataKind::RegularSpherical, 2, 3},
        {"rcs", DataKind::RegularSpherical, 2, 4},     {"I3", DataKind::IrregularSurface, 1, 3},
        {"ID", DataKind::IrregularSurface, 1, 3},      {"ic", DataKind::IrregularSurface, 1, 4},
        {"I3c", DataKind::IrregularCylindrical, 1, 3}, {"icc", DataKind::IrregularCylindrical, 1, 4},
        {"i3s", DataKind::IrregularSpherical, 1, 3},   {"ICS", DataKind::IrregularSpherical, 1, 4},
        {"R4", DataKind::RegularVolume, 3, 4},         {"\"prefixI4", DataKind::IrregularVolume, 1, 4},
    };
    for (const auto& one : cases) {
        DataPanel panel;
        panel.setCell(4, 2, "old");
        std::string text = one.tag;
        for (int i = 0; i < one.sizes; ++i)
            text += " 2";
        const int rows = one.sizes == 1 ? 2 : one.sizes == 2 ? 4 : 8;
        for (int n = 1; n <= rows * one.columns; ++n)
            text += (n % 2 ? "\t" : "\r\n") + std::to_string(n);
        ASSERT_TRUE(importText(panel, text)) << one.tag;
        EXPECT_EQ(panel.kind(), one.kind) << one.tag;
        EXPECT_EQ(panel.gridRows(), rows + 1);
        EXPECT_EQ(panel.cell(1, 2), std::to_string(one.columns + 1));
        EXPECT_EQ(panel.cell(one.columns, rows), std::to_string(rows * one.columns));
        EXPECT_TRUE(one.columns == 4 || panel.cell(4, 2) == "old") << "the colour column stays";
    }
}

TEST(TextImport, badTextsChangeNothingAndEmptyTokensShiftTheData) {
    DataPanel panel;
    panel.setText(1, "7");
    for (const char* text : {"", " ", "X9 1 1", "3", "\"\"", "R", "\xEF\xBB"})
        EXPECT_FALSE(importText(panel, text)) << text;
    EXPECT_THROW(importText(panel, "R3 200 101 1 2 3"), base::Failure);
    EXPECT_THROW(importText(panel, "R3 1e999 1"), base::Failure);
    EXPECT_THROW(importText(panel, "I3 3 " + std::string(500000, ' ')), base::Failure);
    EXPECT_EQ(panel.Text(1), "7");
    EXPECT_EQ(panel.kind(), DataKind::RegularSurface);
    EXPECT_TRUE(importText(panel, "I3 2 1  3 4\r5\n\n"));
    EXPECT_EQ(panel.cell(2, 1), "");
    EXPECT_EQ(panel.cell(3, 1), "3");
    EXPECT_EQ(panel.cell(2, 2), "5");
    for (const char* sizes : {"R3 0 5", "R3 -2 -2", "R3 a b", "R3"}) {
        EXPECT_TRUE(importText(panel, sizes));
        EXPECT_EQ(panel.gridRows(), 1) << sizes;
    }
}

TEST(TextExport, goesOutAsOneQuotedLineAndComesInTheSame) {
    const TemporaryFolder folder;
    const std::filesystem::path path = folder / "text.txt";
    for (int kind = 0; kind < dataKindCount; ++kind) {
        DataPanel panel = scattered(static_cast<DataKind>(kind), 8);
        if (!isIrregular(panel.kind()))
            for (const int box : {1, 2, 4})
                panel.setText(box, "2");
        panel.layOut();
        writeTextFile(path, exportText(panel));
        EXPECT_THAT(bytesOf(path), testing::MatchesRegex("\"[^\"]* \"\r\n"));
        DataPanel again;
        ASSERT_TRUE(importText(again, readTextFile(path)));
        EXPECT_EQ(again.kind(), panel.kind());
        EXPECT_EQ(exportText(again), exportText(panel));
    }
    EXPECT_THROW(readTextFile(folder / "missing.txt"), base::Failure);
    EXPECT_THROW(writeTextFile("/nowhere/x.txt", ""), base::Failure);
}

class Gridding : public testing::TestWithParam<std::tuple<DataKind, int>> {};

TEST_P(Gridding, outputIsTheRegularFormOfTheSameGrid) {
    const auto [kind, method] = GetParam();
    const DataPanel panel = scattered(kind);
    const GriddingChoice gridding{method, method};
    ClsData gridded;
    Scaling scaling;
    gridded.GetData(panel, scaling, gridding, {});
    ASSERT_EQ(gridded.DataType, 2);
    EXPECT_EQ(gridded.fit.has_value(), method == 5 || method == 103);

    DataPanel regular;
    ASSERT_TRUE(importText(regular, exportGriddedText(panel, gridding, {})));
    EXPECT_FALSE(isIrregular(regular.kind()));
    EXPECT_EQ(regular.gridRows(), isVolume(kind) ? 61 : 21);
    if (kind == DataKind::IrregularCylindrical) {
        EXPECT_EQ(regular.cell(3, 1), "-1") << "the lattice starts at the typed limit";
        EXPECT_EQ(regular.cell(3, 20), "2.5");
        EXPECT_EQ(regular.cell(1, 20), "80");
        return;
    }
    ClsData again;
    Scaling againScaling;
    again.GetData(regular, againScaling, {}, {});
    EXPECT_NEAR(againScaling.ScaleZ / scaling.ScaleZ, 1, 1e-9);
    const Array& expected = isVolume(kind) ? gridded.Reg4DV : gridded.Reg3DZ;
    const Array& actual = isVolume(kind) ? again.Reg4DV : again.Reg3DZ;
    // An irregular volume keeps its typed limits and the range of its points, a regular one has those of its nodes.
    const double ratio = isVolume(kind) ? scaling.ScaleV / againScaling.ScaleV : 1;
    for (int i = 0; i < gridded.StepsX; ++i)
        for (int j = 0; j < gridded.StepsY; ++j)
            EXPECT_NEAR(actual(i, j, 0), expected(i, j, 0) * ratio, 1e-9);
}

INSTANTIATE_TEST_SUITE_P(Surfaces, Gridding,
                         testing::Combine(testing::Values(DataKind::IrregularSurface, DataKind::IrregularCylindrical,
                                                          DataKind::IrregularSpherical),
                                          testing::Values(1, 2, 3, 4, 5)));
INSTANTIATE_TEST_SUITE_P(Volumes, Gridding,
                         testing::Combine(testing::Values(DataKind::IrregularVolume), testing::Values(101, 102, 103)));

TEST(GriddingFailures, leaveTheDataSetAndSayWhy) {
    DataPanel panel = scattered(DataKind::IrregularSurface, 20);
    for (int row = 1; row <= 20; ++row) {
        panel.setCell(1, row, "3");
        panel.setCell(2, row, "4");
    }
    ClsData data;
    Scaling scaling;
    const auto failure = [&](const GriddingChoice& gridding, const platform::Desktop& desktop = {}) -> std::string {
        try {
            data.GetData(panel, scaling, gridding, desktop);
        } catch (const base::Failure& failed) {
            return failed.what();
        }
        return {};
    };
    EXPECT_EQ(failure({3, 102}), "Can not solve the linear eqution group.");
    EXPECT_EQ(failure({4, 102}), "Can not solve the linear eqution group.");
    EXPECT_THAT(failure({6, 102}), testing::HasSubstr("no gridding method 6"));
    panel = scattered(DataKind::IrregularSurface, 501);
    EXPECT_THAT(failure({3, 102}), testing::HasSubstr("500"));
    platform::Desktop impatient;
    impatient.reportProgress = [](double) { return false; };
    EXPECT_EQ(failure({2, 102}, impatient), "Cancelled.");
    EXPECT_EQ(data.StepsX, 0);
    EXPECT_EQ(scaling.ScaleX, 0);
    EXPECT_THROW(exportGriddedText(DataPanel{}, {}, {}), base::Failure);
}

}  // namespace
}  // namespace tessaplot::data

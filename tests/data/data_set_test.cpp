#include "data/data_set.h"

#include <cmath>
#include <string>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/failure.h"
#include "data/text_table.h"

namespace tessaplot::data {
namespace {

using testing::HasSubstr;

/// A panel with what a data text tells: tag, sizes, rows.
DataPanel panelOf(std::string text) {
    DataPanel panel;
    EXPECT_TRUE(importText(panel, std::move(text)));
    return panel;
}

DataPanel plane(const std::string& z01 = "3") {
    return panelOf("Rc 2 2 1 10 0 20000 1 30 " + z01 + " 20001 5 10 4 20002 5 30 8 20003");
}

std::string failureOf(const DataPanel& panel, Scaling scaling) {
    ClsData data;
    try {
        data.GetData(panel, scaling, {}, {});
    } catch (const base::Failure& failure) {
        EXPECT_EQ(data.StepsX, 0) << "a failed fill leaves the set as it was";
        return failure.what();
    }
    return {};
}

TEST(ClsData, fillsARegularSurfaceRowByRowAndScalesItToTenUnits) {
    ClsData data;
    Scaling scaling;
    data.GetData(plane(), scaling, {}, {});
    EXPECT_EQ(data.DataDim, 1);
    EXPECT_EQ(data.DataType, 1);
    EXPECT_EQ(data.Reg3DX.upperI(), 2) << "one spare element";
    EXPECT_EQ(data.MaxY, 30);
    EXPECT_DOUBLE_EQ(scaling.ScaleX, 0.4);
    EXPECT_DOUBLE_EQ(data.Reg3DX(1, 0), 12.5);
    EXPECT_DOUBLE_EQ(data.Reg3DY(0, 1) - data.Reg3DY(0, 0), 10);
    EXPECT_EQ(data.Reg3DC(1, 1), 20003) << "colours are not scaled";
    EXPECT_EQ(data.MinC, 10000) << "the start value stays where all values lie above it";
    EXPECT_EQ(data.MaxC, 20003);
    EXPECT_EQ(data.Reg3DX(2, 2), 0);
    EXPECT_THROW(data.Reg3DA(0, 0), base::Failure);
    EXPECT_THROW(data.Reg4DA(0, 0, 0), base::Failure);
}

TEST(ClsData, scalesByEachMode) {
    ClsData data;
    Scaling equal;
    equal.ScaleMode = 2;
    data.GetData(plane(), equal, {}, {});
    EXPECT_EQ(equal.ScaleX, 2);
    EXPECT_EQ(equal.ScaleZ, 2);
    Scaling custom;
    custom.ScaleMode = 3;
    custom.ScaleRatioX = 1;
    custom.ScaleRatioY = 4;
    custom.ZoomZ = 2;
    data.GetData(plane(), custom, {}, {});
    EXPECT_DOUBLE_EQ(custom.ScaleX, 0.5);
    EXPECT_DOUBLE_EQ(custom.ScaleY, 0.125);
    EXPECT_DOUBLE_EQ(custom.ScaleZ, 0.4);
}

TEST(ClsData, namesTheRangeThatCannotBeScaled) {
    EXPECT_THAT(failureOf(panelOf("R3 2 1 1 2 0 2 2 1"), {}), HasSubstr("range of Y is zero"));
    Scaling custom;
    custom.ScaleMode = 3;
    EXPECT_THAT(failureOf(plane(), custom), HasSubstr("ratio of Y is zero"));
    Scaling cut;
    cut.ScaleMode = 0;
    EXPECT_THAT(failureOf(plane(), cut), HasSubstr("no scale mode 0"));
    DataPanel huge = plane();
    huge.setCell(1, 1, "-1e308");
    huge.setCell(1, 4, "1e308");
    EXPECT_THAT(failureOf(huge, {}), HasSubstr("range of X is too large"));
    huge.setCell(1, 4, "1e999");
    EXPECT_THAT(failureOf(huge, {}), HasSubstr("1e999"));
}

TEST(ClsData, leavesTheMissingMarkerUndividedButBoxesIt) {
    ClsData data;
    Scaling scaling;
    data.GetData(plane("0.12345"), scaling, {}, {});
    EXPECT_EQ(data.Reg3DZ(0, 1), missingValue);
    EXPECT_EQ(data.MinZ, 0);
    EXPECT_DOUBLE_EQ(data.Reg3DZ(1, 1), 10);
}

TEST(ClsData, turnsCurvilinearColumnsIntoPositions) {
    ClsData data;
    Scaling scaling;
    data.GetData(panelOf("R3c 2 2 0 1 5 0 2 6 90 1 7 90 2 8"), scaling, {}, {});
    EXPECT_EQ(data.Reg3DB(1, 1), 2);
    EXPECT_EQ(data.Reg3DD(1, 0), 7);
    EXPECT_EQ(data.MaxA, 90);
    EXPECT_EQ(data.MinB, 1);
    const double quarter = 90 * 3.1416 / 180;
    EXPECT_EQ(data.Reg3DX(1, 1), std::cos(quarter) * 2 / scaling.ScaleX);
    data.GetData(panelOf("R3s 2 2 0 10 1 0 80 2 90 10 3 90 80 4"), scaling, {}, {});
    const double polar = 80 * 3.1416 / 180;
    EXPECT_EQ(data.Reg3DY(1, 1), std::sin(polar) * 4 * std::sin(quarter) / scaling.ScaleY);
    EXPECT_EQ(data.Reg3DZ(1, 1), std::cos(polar) * 4 / scaling.ScaleZ);
}

TEST(ClsData, walksAVolumeLayerByLayer) {
    ClsData data;
    Scaling scaling;
    data.GetData(panelOf("R4 2 2 2 0 0 0 1 0 0 1 2 0 2 0 3 0 2 1 4 3 0 0 5 3 0 1 6 3 2 0 7 3 2 1 21"), scaling, {}, {});
    EXPECT_EQ(data.MaxV, 21);
    EXPECT_EQ(scaling.ScaleV, 2);
    EXPECT_EQ(data.Reg4DV(1, 0, 1), 3);
    EXPECT_EQ(data.Reg4DY(0, 1, 0), 10);
}

TEST(ClsData, refusesCountsBeyondItsLimits) {
    DataPanel panel;
    panel.selectKind(DataKind::IrregularVolume);
    panel.setText(3, "4");
    for (const int box : {4, 7, 10})
        panel.setText(box, "2000");
    EXPECT_THAT(failureOf(panel, {}), HasSubstr("nodes"));
    panel.setText(3, "20001");
    EXPECT_THAT(failureOf(panel, {}), HasSubstr("20000"));
    panel.setText(3, "-1");
    EXPECT_THAT(failureOf(panel, {}), HasSubstr("Points"));
}

}  // namespace
}  // namespace tessaplot::data

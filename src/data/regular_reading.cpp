#include "base/angle.h"
#include "base/curvilinear.h"
#include "data/panel_reading.h"
#include "data/range.h"

namespace tessaplot::data {

namespace {

using base::cylindricalPosition;
using base::degreesToRadians;
using base::sphericalPosition;

/// Regular data start their extents here and not at the limits of numbers: values wholly beyond keep these starts.
constexpr double regularStart = 10000;

void startRegularRanges(ClsData& data) {
    data.MinC = data.MinA = data.MinB = regularStart;
    data.MaxC = data.MaxA = data.MaxB = -regularStart;
}

/// Stores a node by its columns as entered: coordinates, or angle, radius and height, or two angles and radius.
void storeNode(ClsData& data, DataKind kind, int i, int j, double first, double second, double third) {
    if (!isCurvilinear(kind)) {
        data.Reg3DX(i, j) = first;
        data.Reg3DY(i, j) = second;
        data.Reg3DZ(i, j) = third;
        return;
    }
    data.Reg3DA(i, j) = first;
    data.Reg3DB(i, j) = second;
    data.Reg3DD(i, j) = third;
    widen(first, data.MinA, data.MaxA);
    widen(second, data.MinB, data.MaxB);
    const double angle = degreesToRadians(first);
    const base::Position at = isCylindrical(kind) ? cylindricalPosition(angle, second, third)
                                                  : sphericalPosition(angle, degreesToRadians(second), third);
    data.Reg3DX(i, j) = at.x;
    data.Reg3DY(i, j) = at.y;
    data.Reg3DZ(i, j) = at.z;
}

void readRegularSurface(ClsData& data, const DataPanel& panel) {
    allocateSurfaceGrid(data, panel.kind());
    startRegularRanges(data);
    const CellReader cell(panel);
    int row = 0;
    for (int i = 0; i < data.StepsX; ++i) {
        for (int j = 0; j < data.StepsY; ++j) {
            ++row;
            storeNode(data, panel.kind(), i, j, cell(1, row), cell(2, row), cell(3, row));
            const double color = cell(4, row);
            data.Reg3DC(i, j) = color;
            widen(color, data.MinC, data.MaxC);
        }
    }
}

void readRegularVolume(ClsData& data, const DataPanel& panel) {
    allocateVolumeGrid(data);
    startRegularRanges(data);
    const CellReader cell(panel);
    int row = 0;
    for (int i = 0; i < data.StepsX; ++i) {
        for (int j = 0; j < data.StepsY; ++j) {
            for (int k = 0; k < data.StepsZ; ++k) {
                ++row;
                data.Reg4DX(i, j, k) = cell(1, row);
                data.Reg4DY(i, j, k) = cell(2, row);
                data.Reg4DZ(i, j, k) = cell(3, row);
                data.Reg4DV(i, j, k) = cell(4, row);
            }
        }
    }
}

}  // namespace

void readRegular(ClsData& data, const DataPanel& panel) {
    if (isVolume(panel.kind()))
        readRegularVolume(data, panel);
    else
        readRegularSurface(data, panel);
}

}  // namespace tessaplot::data

#include <utility>

#include "base/angle.h"
#include "base/curvilinear.h"
#include "data/panel_reading.h"
#include "data/range.h"

namespace tessaplot::data {

namespace {

using base::cylindricalPosition;
using base::degreesToRadians;
using base::sphericalPosition;

/// The extents of scattered points start here and not at the limits of numbers: values wholly beyond keep these starts.
constexpr double irregularStart = 1e10;

/// Box limits of an irregular kind in the order in which they were typed, angles in degrees.
void readTypedLimits(ClsData& data, const DataPanel& panel) {
    const bool cylindrical = isCylindrical(panel.kind());
    data.MinX = panel.number(1);
    data.MaxX = panel.number(2);
    if (!cylindrical) {
        data.MinY = panel.number(5);
        data.MaxY = panel.number(6);
    }
    if (cylindrical || isVolume(panel.kind())) {
        data.MinZ = panel.number(8);
        data.MaxZ = panel.number(9);
    }
}

/// Keeps the angles in degrees and turns the limits that stand for angles into radians.
void convertAngleLimits(ClsData& data, DataKind kind) {
    data.MinA = data.MinX;
    data.MaxA = data.MaxX;
    data.MinX = degreesToRadians(data.MinX);
    data.MaxX = degreesToRadians(data.MaxX);
    if (!isSpherical(kind)) return;
    data.MinB = data.MinY;
    data.MaxB = data.MaxY;
    data.MinY = degreesToRadians(data.MinY);
    data.MaxY = degreesToRadians(data.MaxY);
}

void readScatteredSurface(ClsData& data, const DataPanel& panel) {
    const DataKind kind = panel.kind();
    for (Array* array : {&data.Irreg3DX, &data.Irreg3DY, &data.Irreg3DZ, &data.Irreg3DC})
        array->allocate(data.Points);
    data.MinC = irregularStart;
    data.MaxC = -irregularStart;
    const CellReader cell(panel);
    for (int i = 0; i < data.Points; ++i) {
        const int row = i + 1;
        const double first = cell(1, row);
        const double second = cell(2, row);
        data.Irreg3DX(i) = isCurvilinear(kind) ? degreesToRadians(first) : first;
        data.Irreg3DY(i) = isSpherical(kind) ? degreesToRadians(second) : second;
        data.Irreg3DZ(i) = cell(3, row);
        data.Irreg3DC(i) = cell(4, row);
        widen(data.Irreg3DC(i), data.MinC, data.MaxC);
    }
}

/// The Cartesian positions of curvilinear points take the place of the typed limits.
void boxPointPositions(ClsData& data, DataKind kind) {
    data.MinX = data.MinY = data.MinZ = irregularStart;
    data.MaxX = data.MaxY = data.MaxZ = -irregularStart;
    for (int i = 0; i < data.Points; ++i) {
        const double first = data.Irreg3DX(i);
        const double second = data.Irreg3DY(i);
        const double third = data.Irreg3DZ(i);
        const base::Position at =
            isCylindrical(kind) ? cylindricalPosition(first, second, third) : sphericalPosition(first, second, third);
        widen(at.x, data.MinX, data.MaxX);
        widen(at.y, data.MinY, data.MaxY);
        widen(at.z, data.MinZ, data.MaxZ);
    }
}

void readScatteredVolume(ClsData& data, const DataPanel& panel) {
    for (Array* array : {&data.Irreg4DX, &data.Irreg4DY, &data.Irreg4DZ, &data.Irreg4DV})
        array->allocate(data.Points);
    allocateVolumeGrid(data);
    data.MinC = data.MInv = irregularStart;
    data.MaxC = data.MaxV = -irregularStart;
    const CellReader cell(panel);
    for (int i = 0; i < data.Points; ++i) {
        const int row = i + 1;
        data.Irreg4DX(i) = cell(1, row);
        data.Irreg4DY(i) = cell(2, row);
        data.Irreg4DZ(i) = cell(3, row);
        data.Irreg4DV(i) = cell(4, row);
        widen(data.Irreg4DV(i), data.MInv, data.MaxV);
    }
}

}  // namespace

void readScattered(ClsData& data, const DataPanel& panel) {
    const DataKind kind = panel.kind();
    readTypedLimits(data, panel);
    if (isCurvilinear(kind)) convertAngleLimits(data, kind);
    if (data.MinX > data.MaxX) std::swap(data.MinX, data.MaxX);
    if (data.MinY > data.MaxY) std::swap(data.MinY, data.MaxY);
    if (isVolume(kind)) {
        readScatteredVolume(data, panel);
        return;
    }
    allocateSurfaceGrid(data, kind);
    readScatteredSurface(data, panel);
    if (isCurvilinear(kind)) boxPointPositions(data, kind);
}

}  // namespace tessaplot::data

#include <cmath>
#include <cstdint>
#include <span>
#include <string>
#include <utility>

#include "base/angle.h"
#include "base/failure.h"
#include "base/number_text.h"
#include "data/data_set.h"
#include "data/range.h"

namespace tessaplot::data {

namespace {

using base::degreesToRadians;

/// Regular data start their extents here and not at the limits of numbers: values wholly beyond keep these starts.
constexpr double regularStart = 10000;
constexpr double irregularStart = 1e10;

/// More nodes than this are refused, so that a mistyped count cannot eat the machine.
constexpr std::int64_t maximumNodes = 8'000'000;

int countAtLeastZero(const DataPanel& panel, int box) {
    const int count = panel.count(box);
    if (count < 0)
        throw base::Failure(base::FailureCode::SubscriptOutOfRange,
                            "\"" + std::string(boxLabelsOf(panel.kind())[static_cast<std::size_t>(box) - 1]) +
                                "\" must not be below 0.");
    return count;
}

void requireNodesWithinLimit(std::int64_t a, std::int64_t b, std::int64_t c) {
    if (a + 1 > maximumNodes || (a + 1) * (b + 1) > maximumNodes || (a + 1) * (b + 1) * (c + 1) > maximumNodes)
        throw base::Failure(base::FailureCode::SubscriptOutOfRange,
                            "The grid asks for more than " + std::to_string(maximumNodes) + " nodes.");
}

/// The numbers of the panel's cells, column by column.
class CellReader {
 public:
    explicit CellReader(const DataPanel& panel) : panel_(panel) {}
    double operator()(int column, int row) const { return base::TextValue(panel_.cell(column, row)); }

 private:
    const DataPanel& panel_;
};

void allocateSurfaceGrid(ClsData& data, DataKind kind) {
    for (Array* array : {&data.Reg3DX, &data.Reg3DY, &data.Reg3DZ, &data.Reg3DC})
        array->allocate(data.StepsX, data.StepsY);
    if (isCurvilinear(kind))
        for (Array* array : {&data.Reg3DA, &data.Reg3DB, &data.Reg3DD})
            array->allocate(data.StepsX, data.StepsY);
}

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
    const double a = degreesToRadians(first);
    if (kind == DataKind::RegularCylindrical) {
        data.Reg3DX(i, j) = std::cos(a) * second;
        data.Reg3DY(i, j) = std::sin(a) * second;
        data.Reg3DZ(i, j) = third;
    } else {
        const double b = degreesToRadians(second);
        data.Reg3DX(i, j) = std::sin(b) * third * std::cos(a);
        data.Reg3DY(i, j) = std::sin(b) * third * std::sin(a);
        data.Reg3DZ(i, j) = std::cos(b) * third;
    }
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

void allocateVolumeGrid(ClsData& data) {
    for (Array* array : {&data.Reg4DX, &data.Reg4DY, &data.Reg4DZ, &data.Reg4DV, &data.Reg4DC})
        array->allocate(data.StepsX, data.StepsY, data.StepsZ);
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

/// Box limits of an irregular kind in the order in which they were typed, angles in degrees.
void readTypedLimits(ClsData& data, const DataPanel& panel) {
    data.MinX = panel.number(1);
    data.MaxX = panel.number(2);
    if (panel.kind() == DataKind::IrregularCylindrical) {
        data.MinZ = panel.number(8);
        data.MaxZ = panel.number(9);
    } else {
        data.MinY = panel.number(5);
        data.MaxY = panel.number(6);
    }
    if (panel.kind() == DataKind::IrregularVolume) {
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
    if (kind != DataKind::IrregularSpherical) return;
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
        data.Irreg3DY(i) = kind == DataKind::IrregularSpherical ? degreesToRadians(second) : second;
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
        const double a = data.Irreg3DX(i);
        const double b = data.Irreg3DY(i);
        const double c = data.Irreg3DZ(i);
        if (kind == DataKind::IrregularCylindrical) {
            widen(std::cos(a) * b, data.MinX, data.MaxX);
            widen(std::sin(a) * b, data.MinY, data.MaxY);
            widen(c, data.MinZ, data.MaxZ);
        } else {
            widen(std::sin(b) * c * std::cos(a), data.MinX, data.MaxX);
            widen(std::sin(b) * c * std::sin(a), data.MinY, data.MaxY);
            widen(std::cos(b) * c, data.MinZ, data.MaxZ);
        }
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

/// The boxes that hold the counts of grid nodes along the first, second and third axis; 0 for none.
struct CountBoxes {
    int first;
    int second;
    int third;
};

CountBoxes countBoxes(DataKind kind) {
    switch (kind) {
        case DataKind::RegularVolume:
            return {1, 2, 4};
        case DataKind::IrregularVolume:
            return {4, 7, 10};
        case DataKind::IrregularCylindrical:
            return {4, 10, 0};
        case DataKind::IrregularSurface:
        case DataKind::IrregularSpherical:
            return {4, 7, 0};
        default:
            return {1, 2, 0};
    }
}

void readCounts(ClsData& data, const DataPanel& panel) {
    const CountBoxes boxes = countBoxes(panel.kind());
    data.StepsX = countAtLeastZero(panel, boxes.first);
    data.StepsY = countAtLeastZero(panel, boxes.second);
    if (boxes.third != 0) data.StepsZ = countAtLeastZero(panel, boxes.third);
    if (isIrregular(panel.kind())) data.Points = countAtLeastZero(panel, 3);
    static_cast<void>(panel.dataRows());
    requireNodesWithinLimit(data.StepsX, data.StepsY, data.StepsZ);
}

void startFill(ClsData& data, const DataPanel& panel) {
    data.DataDim = isVolume(panel.kind()) ? 2 : 1;
    data.DataType = isIrregular(panel.kind()) ? 2 : 1;
    readCounts(data, panel);
}

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

}  // namespace

void ClsData::GetData(const DataPanel& panel, Scaling& scaling, const GriddingChoice& gridding,
                      const platform::Desktop& desktop) {
    const DataKind kind = panel.kind();
    ClsData fresh;
    startFill(fresh, panel);
    if (isIrregular(kind)) {
        readScattered(fresh, panel);
        fresh.Grid(kind, gridding, desktop);
    } else if (isVolume(kind)) {
        readRegularVolume(fresh, panel);
    } else {
        readRegularSurface(fresh, panel);
    }
    Scaling freshScaling = scaling;
    fresh.Normalize(freshScaling);
    scaling = freshScaling;
    *this = std::move(fresh);
    if (fit) desktop.status(fitReport(*fit));
}

void ClsData::GetLattice(const DataPanel& panel, const GriddingChoice& gridding, const platform::Desktop& desktop) {
    ClsData fresh;
    startFill(fresh, panel);
    readScattered(fresh, panel);
    if (panel.kind() == DataKind::IrregularCylindrical) {
        fresh.MinZ = panel.number(8);
        fresh.MaxZ = panel.number(9);
    }
    fresh.Grid(panel.kind(), gridding, desktop);
    *this = std::move(fresh);
}

}  // namespace tessaplot::data

#include "data/panel_reading.h"

#include <cstdint>
#include <string>
#include <utility>

#include "base/failure.h"

namespace tessaplot::data {

namespace {

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

}  // namespace

void allocateSurfaceGrid(ClsData& data, DataKind kind) {
    for (Array* array : {&data.Reg3DX, &data.Reg3DY, &data.Reg3DZ, &data.Reg3DC})
        array->allocate(data.StepsX, data.StepsY);
    if (isCurvilinear(kind))
        for (Array* array : {&data.Reg3DA, &data.Reg3DB, &data.Reg3DD})
            array->allocate(data.StepsX, data.StepsY);
}

void allocateVolumeGrid(ClsData& data) {
    for (Array* array : {&data.Reg4DX, &data.Reg4DY, &data.Reg4DZ, &data.Reg4DV, &data.Reg4DC})
        array->allocate(data.StepsX, data.StepsY, data.StepsZ);
}

void ClsData::GetData(const DataPanel& panel, Scaling& scaling, const GriddingChoice& gridding,
                      const platform::Desktop& desktop) {
    const DataKind kind = panel.kind();
    ClsData fresh;
    startFill(fresh, panel);
    if (isIrregular(kind)) {
        readScattered(fresh, panel);
        fresh.Grid(kind, gridding, desktop);
    } else {
        readRegular(fresh, panel);
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

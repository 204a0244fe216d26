#include "data/data_set.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

#include "base/failure.h"
#include "data/range.h"

namespace tessaplot::data {

namespace {

constexpr double startMinimum = 1e10;
constexpr double startMaximum = -1e10;

/// A range that fills the scene comes to so many units.
constexpr double sceneUnits = 10;

/// Calls `visit(offset)` for each node but the spare ones, in the order in which they lie in memory.
template <class Visitor>
void forEachNode(const Array& array, int countI, int countJ, int countK, Visitor&& visit) {
    for (int k = 0; k < countK; ++k) {
        for (int j = 0; j < countJ; ++j) {
            const std::size_t first =
                array.strideJ() * static_cast<std::size_t>(j) + array.strideK() * static_cast<std::size_t>(k);
            for (int i = 0; i < countI; ++i)
                visit(first + static_cast<std::size_t>(i));
        }
    }
}

/// Fails unless nodes up to the counts are there, so that a walk over them needs no further check.
void requireNodes(const Array& array, int countI, int countJ, int countK = 1) {
    if (countI > 0 && countJ > 0 && countK > 0) static_cast<void>(array(countI - 1, countJ - 1, countK - 1));
}

void findRange(const Array& array, int countI, int countJ, int countK, double& minimum, double& maximum) {
    minimum = startMinimum;
    maximum = startMaximum;
    requireNodes(array, countI, countJ, countK);
    const auto values = array.values();
    forEachNode(array, countI, countJ, countK, [&](std::size_t at) { widen(values[at], minimum, maximum); });
}

void scaleNodes(Array& array, int countI, int countJ, int countK, double scale) {
    requireNodes(array, countI, countJ, countK);
    const auto values = array.values();
    forEachNode(array, countI, countJ, countK, [&](std::size_t at) {
        if (values[at] != missingValue) values[at] /= scale;
    });
}

double overRatio(double range, double ratio, std::string_view axis) {
    if (ratio == 0)
        throw base::Failure(base::FailureCode::DivisionByZero,
                            "The data cannot be scaled: the scale ratio of " + std::string(axis) + " is zero.");
    return range / ratio;
}

void requireScale(double scale, std::string_view axis) {
    if (scale == 0)
        throw base::Failure(base::FailureCode::DivisionByZero,
                            "The data cannot be scaled: the range of " + std::string(axis) + " is zero.");
    if (!std::isfinite(scale))
        throw base::Failure(base::FailureCode::Overflow,
                            "The data cannot be scaled: the range of " + std::string(axis) + " is too large.");
}

/// How far the data run along each axis.
struct Ranges {
    double x;
    double y;
    double z;
};

void customSurfaceScales(const Ranges& range, Scaling& scaling) {
    const double longest =
        std::max(overRatio(range.x, scaling.ScaleRatioX, "X"), overRatio(range.y, scaling.ScaleRatioY, "Y"));
    scaling.ScaleX = longest / sceneUnits;
    scaling.ScaleY = scaling.ScaleRatioX * scaling.ScaleX / scaling.ScaleRatioY;
    scaling.ScaleZ = overRatio(range.z / sceneUnits, scaling.ZoomZ, "Z (Zoom Z)");
}

void customVolumeScales(const Ranges& range, Scaling& scaling) {
    const double longest =
        std::max({overRatio(range.x, scaling.ScaleRatioX, "X"), overRatio(range.y, scaling.ScaleRatioY, "Y"),
                  overRatio(range.z, scaling.ScaleRatioZ, "Z")});
    scaling.ScaleX = longest / sceneUnits;
    scaling.ScaleY = scaling.ScaleRatioX * scaling.ScaleX / scaling.ScaleRatioY;
    scaling.ScaleZ = scaling.ScaleRatioX * scaling.ScaleX / scaling.ScaleRatioZ;
}

void computeScales(const ClsData& data, Scaling& scaling) {
    const Ranges range{data.MaxX - data.MinX, data.MaxY - data.MinY, data.MaxZ - data.MinZ};
    if (scaling.ScaleMode == 1) {
        scaling.ScaleX = range.x / sceneUnits;
        scaling.ScaleY = range.y / sceneUnits;
        scaling.ScaleZ = range.z / sceneUnits;
    } else if (scaling.ScaleMode == 2) {
        scaling.ScaleX = scaling.ScaleY = scaling.ScaleZ = std::max({range.x, range.y, range.z}) / sceneUnits;
    } else if (scaling.ScaleMode == 3) {
        if (data.DataDim == 1)
            customSurfaceScales(range, scaling);
        else
            customVolumeScales(range, scaling);
    } else {
        throw base::Failure(base::FailureCode::BadInput, "The data cannot be scaled: there is no scale mode " +
                                                             std::to_string(scaling.ScaleMode) +
                                                             ", only 1 (square), 2 (equal) and 3 (custom).");
    }
    if (data.DataDim == 2) scaling.ScaleV = (data.MaxV - data.MInv) / sceneUnits;
}

}  // namespace

void ClsData::GetBox() {
    if (DataDim == 1) {
        findRange(Reg3DX, StepsX, StepsY, 1, MinX, MaxX);
        findRange(Reg3DY, StepsX, StepsY, 1, MinY, MaxY);
        findRange(Reg3DZ, StepsX, StepsY, 1, MinZ, MaxZ);
    } else if (DataDim == 2 && DataType == 1) {
        findRange(Reg4DX, StepsX, StepsY, StepsZ, MinX, MaxX);
        findRange(Reg4DY, StepsX, StepsY, StepsZ, MinY, MaxY);
        findRange(Reg4DZ, StepsX, StepsY, StepsZ, MinZ, MaxZ);
        findRange(Reg4DV, StepsX, StepsY, StepsZ, MInv, MaxV);
    }
}

void ClsData::Normalize(Scaling& scaling) {
    GetBox();
    if (DataDim != 1 && DataDim != 2) return;
    computeScales(*this, scaling);
    requireScale(scaling.ScaleX, "X");
    requireScale(scaling.ScaleY, "Y");
    requireScale(scaling.ScaleZ, "Z");
    if (DataDim == 1) {
        if (DataType == 2) {
            scaleNodes(Irreg3DX, Points, 1, 1, scaling.ScaleX);
            scaleNodes(Irreg3DY, Points, 1, 1, scaling.ScaleY);
            scaleNodes(Irreg3DZ, Points, 1, 1, scaling.ScaleZ);
        }
        scaleNodes(Reg3DX, StepsX, StepsY, 1, scaling.ScaleX);
        scaleNodes(Reg3DY, StepsX, StepsY, 1, scaling.ScaleY);
        scaleNodes(Reg3DZ, StepsX, StepsY, 1, scaling.ScaleZ);
    } else {
        requireScale(scaling.ScaleV, "V");
        scaleNodes(Reg4DX, StepsX, StepsY, StepsZ, scaling.ScaleX);
        scaleNodes(Reg4DY, StepsX, StepsY, StepsZ, scaling.ScaleY);
        scaleNodes(Reg4DZ, StepsX, StepsY, StepsZ, scaling.ScaleZ);
        scaleNodes(Reg4DV, StepsX, StepsY, StepsZ, scaling.ScaleV);
    }
}

std::size_t ClsData::bytes() const {
    std::size_t values = 0;
    for (const Array* array :
         {&Reg3DX, &Reg3DY, &Reg3DZ,   &Reg3DC,   &Reg3DA,   &Reg3DB,   &Reg3DD,   &Reg4DX,   &Reg4DY,   &Reg4DZ,
          &Reg4DV, &Reg4DC, &Irreg3DX, &Irreg3DY, &Irreg3DZ, &Irreg3DC, &Irreg4DX, &Irreg4DY, &Irreg4DZ, &Irreg4DV})
        values += array->values().size();
    return values * sizeof(double);
}

}  // namespace tessaplot::data

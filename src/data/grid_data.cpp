#include <span>
#include <string>
#include <string_view>

#include "base/failure.h"
#include "base/number_text.h"
#include "data/data_set.h"
#include "numerics/grid.h"

namespace tessaplot::data {

namespace {

constexpr std::string_view noGrid = "Can not generate a regular data grid, please try another method.";

std::span<const double> pointsOf(const Array& column, int points) {
    return column.values().first(static_cast<std::size_t>(points));
}

numerics::SurfaceCoordinates coordinatesOf(DataKind kind) {
    if (isCylindrical(kind)) return numerics::SurfaceCoordinates::Cylindrical;
    if (isSpherical(kind)) return numerics::SurfaceCoordinates::Spherical;
    return numerics::SurfaceCoordinates::Cartesian;
}

numerics::ScatteredSurface scatteredSurface(const ClsData& data, DataKind kind) {
    numerics::ScatteredSurface surface;
    surface.coordinates = coordinatesOf(kind);
    surface.x = pointsOf(data.Irreg3DX, data.Points);
    surface.y = pointsOf(data.Irreg3DY, data.Points);
    surface.z = pointsOf(data.Irreg3DZ, data.Points);
    surface.c = pointsOf(data.Irreg3DC, data.Points);
    surface.MinX = data.MinX;
    surface.MaxX = data.MaxX;
    surface.MinY = data.MinY;
    surface.MaxY = data.MaxY;
    surface.MinZ = data.MinZ;
    surface.MaxZ = data.MaxZ;
    surface.MinA = data.MinA;
    surface.MaxA = data.MaxA;
    surface.MinB = data.MinB;
    surface.MaxB = data.MaxB;
    surface.StepsX = data.StepsX;
    surface.StepsY = data.StepsY;
    surface.applicationPoints = data.Points;
    return surface;
}

numerics::ScatteredVolume scatteredVolume(const ClsData& data) {
    numerics::ScatteredVolume volume;
    volume.x = pointsOf(data.Irreg4DX, data.Points);
    volume.y = pointsOf(data.Irreg4DY, data.Points);
    volume.z = pointsOf(data.Irreg4DZ, data.Points);
    volume.v = pointsOf(data.Irreg4DV, data.Points);
    volume.MinX = data.MinX;
    volume.MaxX = data.MaxX;
    volume.MinY = data.MinY;
    volume.MaxY = data.MaxY;
    volume.MinZ = data.MinZ;
    volume.MaxZ = data.MaxZ;
    volume.StepsX = data.StepsX;
    volume.StepsY = data.StepsY;
    volume.StepsZ = data.StepsZ;
    volume.applicationPoints = data.Points;
    return volume;
}

void requireMethod(bool known, int method, std::string_view methods) {
    if (!known)
        throw base::Failure(base::FailureCode::BadInput, "There is no gridding method " + std::to_string(method) +
                                                             ", only " + std::string(methods) + ".");
}

numerics::GridResult gridSurfaceOf(ClsData& data, DataKind kind, int method, const numerics::Progress& progress) {
    requireMethod(method >= 1 && method <= 5, method, "1 to 5 for surfaces");
    const numerics::SurfaceNodes nodes{data.Reg3DX.values(), data.Reg3DY.values(), data.Reg3DZ.values(),
                                       data.Reg3DC.values(), data.Reg3DA.values(), data.Reg3DB.values(),
                                       data.Reg3DD.values()};
    return numerics::gridSurface(scatteredSurface(data, kind), method, progress, nodes);
}

numerics::GridResult gridVolumeOf(ClsData& data, int method, const numerics::Progress& progress) {
    requireMethod(method >= 101 && method <= 103, method, "101 to 103 for volumes");
    const numerics::VolumeNodes nodes{data.Reg4DX.values(), data.Reg4DY.values(), data.Reg4DZ.values(),
                                      data.Reg4DV.values(), data.Reg4DC.values()};
    return numerics::gridVolume(scatteredVolume(data), method, progress, nodes);
}

}  // namespace

void ClsData::Grid(DataKind kind, const GriddingChoice& gridding, const platform::Desktop& desktop) {
    if (DataType != 2) return;
    const numerics::Progress progress = [&desktop](double share) { desktop.progress(share); };
    const numerics::GridResult result = DataDim == 2 ? gridVolumeOf(*this, gridding.VolumeGridMethod, progress)
                                                     : gridSurfaceOf(*this, kind, gridding.SurfaceGridMethod, progress);
    if (!result.complete)
        throw base::Failure(base::FailureCode::BadInput, std::string(result.message.empty() ? noGrid : result.message));
    fit.reset();
    if (result.fit) fit = result.fit->statistics;
}

std::string fitReport(const numerics::FitStatistics& fit) {
    const auto verdict = [&fit](std::size_t level) { return fit.significant[level] ? "yes" : "no"; };
    return "Quadratic fit with R " + base::generalText(fit.R) + ", standard estimate " +
           base::generalText(fit.standardEstimate) + ", F " + base::generalText(fit.F) + ", significant at 0.05 " +
           verdict(0) + ", at 0.01 " + verdict(1);
}

}  // namespace tessaplot::data

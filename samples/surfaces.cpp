#include "surfaces.h"

#include <cmath>
#include <vector>

#include "base/color.h"
#include "graphs/color_fill.h"
#include "sample_builder.h"
#include "texture_picture.h"

namespace tessaplot::samples {

namespace {

using base::packColor;
using data::DataKind;
using std::filesystem::path;

constexpr const char* chartName = "chart.bmp";

namespace material {
constexpr int sheen = 8;
constexpr int winter = 13;
}  // namespace material

constexpr int equalScales = 2;
constexpr int thinPlates = 4;
constexpr int fillShape = 3;
constexpr int flat = 1;
constexpr int smoothest = 3;

double bump(double x, double y, double middleX, double middleY, double width) {
    return std::exp(-(std::pow(x - middleX, 2) + std::pow(y - middleY, 2)) / (width * width));
}

/// Hills and hollows over -3 to 3.
double hills(double x, double y) {
    return 3 * std::pow(1 - x, 2) * std::exp(-x * x - std::pow(y + 1, 2)) -
           10 * (x / 5 - std::pow(x, 3) - std::pow(y, 5)) * std::exp(-x * x - y * y) -
           std::exp(-std::pow(x + 1, 2) - y * y) / 3;
}

/// A height over a square, as a regular Cartesian surface with the height as fill value.
template <class Height>
void squareSurface(SampleBuilder& sample, int nodes, double limit, const Height& height) {
    sample.regularSurface(DataKind::RegularSurface, nodes, nodes, [&](double u, double v) {
        const double x = between(-limit, limit, u);
        const double y = between(-limit, limit, v);
        const double z = height(x, y);
        return Row{x, y, z, z};
    });
}

graphs::Cls9& addSurface(SampleBuilder& sample, const std::string& ramp) {
    graphs::Cls9& surface = sample.add(graphs::graph_type::surface, "3D Surface Model");
    surface.Show = fillShape;
    surface.Smoothness = smoothest;
    surface.Material = material::winter;
    surface.FillStyle = 5;
    surface.ColorName = ramp;
    graphs::ApplyNamedMap(surface, ramp);
    return surface;
}

void writeRegular(const path& folder) {
    SampleBuilder sample(scene::mode3D);
    squareSurface(sample, 61, 3, hills);
    addSurface(sample, "Rainbow");
    sample.write(folder / "surface_rg.tsp");
}

template <class Height>
std::vector<Row> scatteredPoints(int count, double limit, const Height& height) {
    std::vector<Row> points;
    for (int n = 1; n <= count; ++n) {
        const double x = between(-limit, limit, radicalInverse(n, 2));
        const double y = between(-limit, limit, radicalInverse(n, 3));
        const double z = height(x, y);
        points.push_back({x, y, z, z});
    }
    return points;
}

double island(double x, double y) {
    return 4 * bump(x, y, -1, 0.5, 2.2) + 2.6 * bump(x, y, 2, -1.2, 1.4) - 0.8 * bump(x, y, 1.5, 2.5, 1.5);
}

void writeIrregular(const path& folder) {
    SampleBuilder sample(scene::mode3D);
    sample.irregularSurface(scatteredPoints(150, 4, island), {41, 41, -4, 4, -4, 4});
    sample.state().gridding.SurfaceGridMethod = thinPlates;
    graphs::Cls9& surface = addSurface(sample, "Earth");
    surface.FillStyle = 3;
    surface.FirstColor = packColor(250, 240, 200);
    surface.SecondColor = packColor(30, 120, 70);
    surface.ShowIrregData = true;
    sample.write(folder / "surface.tsp");
}

void writeTriangles(const path& folder) {
    SampleBuilder sample(scene::mode3D);
    sample.irregularSurface(scatteredPoints(260, 4, island), {31, 31, -4, 4, -4, 4});
    graphs::Cls9& triangles = sample.add(graphs::graph_type::delaunay, "Delaunay Triangles");
    triangles.Smoothness = flat;
    triangles.FillStyle = 5;
    triangles.ColorName = "Rainbow";
    triangles.ShowDS = true;
    triangles.ShowDG = true;
    triangles.TriColor = packColor(40, 40, 60);
    triangles.TriWidth = 1;
    sample.write(folder / "delaunay.tsp");
}

void writeFlat(const path& folder) {
    SampleBuilder sample(scene::mode3D);
    squareSurface(sample, 25, 3, hills);
    graphs::Cls9& surface = addSurface(sample, "Marine");
    surface.Smoothness = flat;
    surface.FillStyle = 4;
    surface.SecondColor = packColor(90, 150, 230);
    surface.Material = material::sheen;
    sample.write(folder / "surface_flat.tsp");
}

void writeWithGrid(const path& folder) {
    SampleBuilder sample(scene::mode3D);
    squareSurface(sample, 31, 8, [](double x, double y) {
        const double r = std::hypot(x, y);
        return r < 1e-9 ? 1.0 : std::sin(r) / r;
    });
    sample.titles("X", "Y", "sin(r) / r");
    graphs::Cls9& surface = addSurface(sample, "Rainbow");
    surface.FillStyle = 3;
    surface.FirstColor = packColor(255, 190, 60);
    surface.SecondColor = packColor(60, 90, 200);
    graphs::Cls9& grid = sample.add(graphs::graph_type::gridModel, "3D Grid Model");
    grid.GridColor = packColor(40, 40, 40);
    grid.GridWidth = 1;
    sample.write(folder / "surface_grid.tsp");
}

/// The fill value is not the height: it falls from corner to corner, and the plane below tells it.
void writeOverlays(const path& folder) {
    SampleBuilder sample(scene::mode3D);
    sample.regularSurface(DataKind::RegularSurface, 41, 41, [](double u, double v) {
        const double x = between(-4, 4, u);
        const double y = between(-4, 4, v);
        return Row{x, y, island(x, y), 3 * std::sin(x * 0.8) * std::cos(y * 0.6) + 0.2 * x};
    });
    graphs::Cls9& surface = addSurface(sample, "Rainbow");
    surface.ShowColormap = true;
    surface.ShowVector = true;
    sample.write(folder / "surface_colormap.tsp");
}

void writeSpecial(const path& folder) {
    SampleBuilder sample(scene::mode3D);
    sample.state().scaling.ScaleMode = equalScales;
    squareSurface(sample, 41, 4, [](double x, double y) { return 1.5 * std::cos(0.39 * x) * std::cos(0.39 * y); });
    graphs::Cls9& surface = addSurface(sample, "Rainbow");
    surface.ShowTex = true;
    surface.TexName = chartName;
    surface.TexMode = 2;
    surface.FillStyle = 4;
    surface.SecondColor = packColor(255, 255, 255);
    surface.ShowTrans = true;
    surface.TransAlpha = 0.75;
    sample.write(folder / "surface_rg_spe.tsp");
}

void writeCylinderSurface(const path& folder) {
    SampleBuilder sample(scene::mode3D);
    sample.regularSurface(DataKind::RegularCylindrical, 61, 51, [](double u, double v) {
        const double height = between(0, 12, v);
        const double radius = 3 + 0.9 * std::sin(height * 0.75) + 0.15 * std::cos(6 * between(0, 2 * M_PI, u));
        return Row{between(0, 360, u), radius, height, radius};
    });
    graphs::Cls9& surface = addSurface(sample, "Fiery");
    surface.FillStyle = 3;
    surface.FirstColor = packColor(255, 170, 90);
    surface.SecondColor = packColor(150, 40, 60);
    sample.write(folder / "cylinder_surface.tsp");
}

void writeSphereSurface(const path& folder) {
    SampleBuilder sample(scene::mode3D);
    sample.regularSurface(DataKind::RegularSpherical, 73, 46, [](double u, double v) {
        const double longitude = between(0, 360, u);
        const double polar = between(0, 180, v);
        const double bumps = std::pow(std::sin(polar * M_PI / 180), 4) * std::cos(4 * longitude * M_PI / 180);
        const double radius = 5 + 0.9 * bumps;
        return Row{longitude, polar, radius, radius};
    });
    addSurface(sample, "Rainbow");
    sample.write(folder / "sphere_surface.tsp");
}

}  // namespace

void writeSurfaces(const path& folder) {
    writeChartPicture(folder / chartName);
    writeRegular(folder);
    writeIrregular(folder);
    writeTriangles(folder);
    writeFlat(folder);
    writeWithGrid(folder);
    writeOverlays(folder);
    writeSpecial(folder);
    writeCylinderSurface(folder);
    writeSphereSurface(folder);
}

}  // namespace tessaplot::samples

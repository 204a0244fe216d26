#include "flat_plots.h"

#include <cmath>
#include <string>
#include <vector>

#include "base/color.h"
#include "graphs/color_fill.h"
#include "sample_builder.h"

namespace tessaplot::samples {

namespace {

using base::packColor;
using data::DataKind;
using graphs::Cls9;
using std::filesystem::path;

constexpr int equalScales = 2;
constexpr int customScales = 3;
constexpr int fillShape = 3;
constexpr int smoothest = 3;
constexpr int winter = 13;

/// How contour lines take their colour.
namespace line_color {
constexpr int gradient = 3;
constexpr int single = 4;
constexpr int colorMap = 5;
}  // namespace line_color

/// How areas take their colour.
namespace area_color {
constexpr int alongZ = 3;
constexpr int colorMap = 5;
}  // namespace area_color

double radians(double degrees) {
    return degrees * M_PI / 180;
}

void useRamp(Cls9& graph, const std::string& ramp) {
    graph.ColorName = ramp;
    graphs::ApplyNamedMap(graph, ramp);
}

/// The nodes of a surface over a rectangle about the origin.
struct Rectangle {
    int nodesX;
    int nodesY;
    double limitX;
    double limitY;
};

/// A surface by its height and its fill value, both functions of x and y.
template <class Height, class Value>
void cartesianSurface(SampleBuilder& sample, const Rectangle& area, const Height& height, const Value& value) {
    sample.regularSurface(DataKind::RegularSurface, area.nodesX, area.nodesY, [&](double u, double v) {
        const double x = between(-area.limitX, area.limitX, u);
        const double y = between(-area.limitY, area.limitY, v);
        return Row{x, y, height(x, y), value(x, y)};
    });
}

/// Hills and hollows over -3 to 3, highest behind the middle.
double peaks(double x, double y) {
    return 3 * std::pow(1 - x, 2) * std::exp(-x * x - std::pow(y + 1, 2)) -
           10 * (x / 5 - std::pow(x, 3) - std::pow(y, 5)) * std::exp(-x * x - y * y) -
           std::exp(-std::pow(x + 1, 2) - y * y) / 3;
}

/// The potential of two charges that are spread over small balls: a strong positive one at the left, a weaker negative
/// one at the upper right.
double twoCharges(double x, double y) {
    constexpr double ball = 1.3;
    const auto potential = [&](double charge, double atX, double atY) {
        return charge / std::sqrt(std::pow(x - atX, 2) + std::pow(y - atY, 2) + ball * ball);
    };
    return potential(2, -1.6, -0.4) + potential(-1.2, 1.5, 1.1);
}

/// A round wave that dies away from the middle.
double ripples(double x, double y) {
    const double r = std::hypot(x, y);
    return r < 1e-9 ? 1.0 : std::sin(r) / r;
}

void writeColorContour(const path& folder) {
    SampleBuilder sample(scene::mode2D);
    cartesianSurface(sample, {81, 61, 3, 3}, peaks, peaks);
    sample.titles("x", "y", "z");
    Cls9& map = sample.add(graphs::graph_type::colorMap, "Color Map");
    map.FillStyle = area_color::colorMap;
    useRamp(map, "Rainbow");
    Cls9& lines = sample.add(graphs::graph_type::contour, "Contour Plot");
    lines.ContourLevels = 0.5;
    lines.ConFillType = line_color::single;
    lines.ConWidth = 1;
    lines.ConColor1 = packColor(30, 30, 50);
    lines.ConColor2 = lines.ConColor1;
    sample.write(folder / "color_contour.tsp");
}

void writeContourVector(const path& folder) {
    SampleBuilder sample(scene::mode2D);
    // Arrows are as long as the scaled heights differ: half the height keeps them within their cells.
    sample.state().scaling = {
        .ScaleMode = customScales, .ScaleRatioX = 1, .ScaleRatioY = 1, .ScaleRatioZ = 1, .ZoomZ = 0.5};
    cartesianSurface(sample, {31, 31, 4, 4}, twoCharges, twoCharges);
    sample.titles("x / cm", "y / cm", "U / V");
    Cls9& lines = sample.add(graphs::graph_type::contour, "Contour Plot");
    lines.ContourLevels = 0.25;
    lines.ConFillType = line_color::gradient;
    lines.ConWidth = 1;
    lines.ConColor1 = packColor(0, 60, 255);
    lines.ConColor2 = packColor(255, 30, 0);
    Cls9& arrows = sample.add(graphs::graph_type::vector, "Vector Plot");
    arrows.VectorColor = packColor(70, 80, 100);
    sample.write(folder / "contour_vector.tsp");
}

/// The surface that lines lie on.
Cls9& addBody(SampleBuilder& sample) {
    Cls9& surface = sample.add(graphs::graph_type::surface, "3D Surface Model");
    surface.Show = fillShape;
    surface.Smoothness = smoothest;
    surface.Material = winter;
    return surface;
}

Cls9& addContours(SampleBuilder& sample, double interval, const std::string& ramp) {
    Cls9& lines = sample.add(graphs::graph_type::contour3D, "3D Contour Plot");
    lines.Contour3Levels = interval;
    lines.Con3FillType = line_color::colorMap;
    lines.Con3Width = 3;
    useRamp(lines, ramp);
    return lines;
}

/// Contour lines alone: their heights make the shape.
void writeHeightLines(const path& folder) {
    SampleBuilder sample(scene::mode3D);
    cartesianSurface(sample, {61, 61, 3, 3}, peaks, peaks);
    addContours(sample, 0.5, "Rainbow");
    sample.write(folder / "surface_3dcontour.tsp");
}

/// The lines tell another quantity than the height: a temperature that falls from a warm corner.
void writeLinesOnSurface(const path& folder) {
    SampleBuilder sample(scene::mode3D);
    cartesianSurface(sample, {61, 51, 8, 8}, ripples, [](double x, double y) {
        return 20 + 15 * std::exp(-(std::pow(x - 4, 2) + std::pow(y + 5, 2)) / 60) - 0.4 * x * std::sin(0.3 * y);
    });
    sample.titles("X", "Y", "Height");
    Cls9& surface = addBody(sample);
    surface.FillStyle = area_color::alongZ;
    surface.FirstColor = packColor(255, 240, 200);
    surface.SecondColor = packColor(120, 150, 190);
    addContours(sample, 1, "Rainbow");
    sample.write(folder / "surface_3dcc.tsp");
}

/// Warmth round a bent pipe that is heated from one side.
void writeCylinder(const path& folder) {
    SampleBuilder sample(scene::mode3D);
    sample.state().scaling.ScaleMode = equalScales;
    sample.regularSurface(DataKind::RegularCylindrical, 61, 41, [](double u, double v) {
        const double angle = between(0, 360, u);
        const double height = between(-2, 10, v);
        const double radius = 3 + 0.7 * std::sin(0.7 * height);
        const double warmth =
            40 * std::exp(-std::pow((height - 3) / 4, 2)) * (1.3 + std::cos(radians(angle - 60))) + 2 * height;
        return Row{angle, radius, height, warmth};
    });
    Cls9& surface = addBody(sample);
    surface.FillStyle = area_color::alongZ;
    surface.FirstColor = packColor(235, 235, 245);
    surface.SecondColor = packColor(150, 170, 200);
    addContours(sample, 5, "Rainbow");
    sample.write(folder / "surface_3dccy.tsp");
}

/// A standing wave on a sphere, with the lines of its displacement.
void writeSphere(const path& folder) {
    SampleBuilder sample(scene::mode3D);
    sample.state().scaling.ScaleMode = equalScales;
    sample.regularSurface(DataKind::RegularSpherical, 73, 46, [](double u, double v) {
        const double longitude = between(0, 360, u);
        const double polar = between(0, 180, v);
        const double wave =
            std::pow(std::sin(radians(polar)), 3) * std::cos(3 * radians(longitude)) + 0.5 * std::cos(radians(polar));
        return Row{longitude, polar, 5 + 0.5 * wave, wave};
    });
    Cls9& surface = addBody(sample);
    surface.FillStyle = area_color::colorMap;
    useRamp(surface, "Marine");
    addContours(sample, 0.15, "Rainbow");
    sample.write(folder / "surface_3dcs.tsp");
}

/// Soundings of a lake floor, with its depth lines on the map below.
void writeIrregular(const path& folder) {
    const auto depth = [](double x, double y) {
        return 6 * std::exp(-(std::pow(x - 1.2, 2) + std::pow((y + 0.8) * 1.3, 2)) / 5) +
               3.5 * std::exp(-(std::pow(x + 2.4, 2) + std::pow(y - 1.9, 2)) / 2.5) + 0.25 * x;
    };
    std::vector<Row> soundings;
    for (int n = 1; n <= 220; ++n) {
        const double x = between(-4, 4, radicalInverse(n, 2));
        const double y = between(-4, 4, radicalInverse(n, 3));
        soundings.push_back({x, y, -depth(x, y), depth(x, y)});
    }
    SampleBuilder sample(scene::mode3D);
    sample.irregularSurface(soundings, {45, 45, -4, 4, -4, 4});
    sample.state().gridding.SurfaceGridMethod = 4;
    sample.titles("x / km", "y / km", "Floor / m");
    Cls9& surface = addBody(sample);
    surface.FillStyle = area_color::colorMap;
    useRamp(surface, "Rainbow");
    surface.ShowColormap = true;
    surface.ShowContour = true;
    surface.ContourLevel = 0.5;
    surface.LineWidth = 1;
    sample.write(folder / "surfaceir_contour.tsp");
}

}  // namespace

void writeFlatPlots(const path& folder) {
    writeColorContour(folder);
    writeContourVector(folder);
    writeHeightLines(folder);
    writeLinesOnSurface(folder);
    writeCylinder(folder);
    writeSphere(folder);
    writeIrregular(folder);
}

}  // namespace tessaplot::samples

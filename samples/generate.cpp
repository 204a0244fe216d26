#include <cmath>
#include <cstdio>
#include <exception>
#include <filesystem>

#include "base/color.h"
#include "flat_plots.h"
#include "sample_builder.h"
#include "surfaces.h"
#include "volumes.h"

namespace {

using namespace tessaplot;
using base::packColor;
using data::DataKind;
using samples::between;
using samples::Row;
using samples::SampleBuilder;

void addGridModel(SampleBuilder& sample, base::PackedColor color) {
    graphs::Cls9& grid = sample.add(graphs::graph_type::gridModel, "3D Grid Model");
    grid.GridColor = color;
    grid.GridWidth = 1;
}

/// Ripples that die away from the middle, as a vertex model on a grid model.
void writeGridVertex(const std::filesystem::path& folder) {
    SampleBuilder sample(scene::mode3D);
    sample.regularSurface(DataKind::RegularSurface, 25, 25, [](double u, double v) {
        const double x = between(-8, 8, u);
        const double y = between(-8, 8, v);
        const double r = std::hypot(x, y);
        const double z = r < 1e-9 ? 1.0 : std::sin(r) / r;
        return Row{x, y, z, z};
    });
    sample.titles("X", "Y", "sin(r) / r");
    graphs::Cls9& vertices = sample.add(graphs::graph_type::vertexModel, "3D Vertex Model");
    vertices.VertSize = 2;
    vertices.VertColor = packColor(200, 40, 40);
    addGridModel(sample, packColor(60, 110, 230));
    sample.write(folder / "grid_vertex.tsp");
}

/// A vase: the radius swings along the height.
void writeCylinder(const std::filesystem::path& folder) {
    SampleBuilder sample(scene::mode3D);
    sample.regularSurface(DataKind::RegularCylindrical, 49, 41, [](double u, double v) {
        const double height = between(0, 12, v);
        const double radius = 3 + 0.9 * std::sin(height * 0.75) + 0.15 * std::cos(6 * between(0, 2 * M_PI, u));
        return Row{between(0, 360, u), radius, height, radius};
    });
    addGridModel(sample, packColor(0, 150, 130));
    sample.write(folder / "cylinder.tsp");
}

/// A sphere with gentle bumps.
void writeSphere(const std::filesystem::path& folder) {
    SampleBuilder sample(scene::mode3D);
    sample.regularSurface(DataKind::RegularSpherical, 49, 31, [](double u, double v) {
        const double longitude = between(0, 360, u);
        const double polar = between(0, 180, v);
        const double bump = std::pow(std::sin(polar * M_PI / 180), 4) * std::cos(4 * longitude * M_PI / 180);
        const double radius = 5 + 0.9 * bump;
        return Row{longitude, polar, radius, radius};
    });
    addGridModel(sample, packColor(170, 70, 200));
    sample.write(folder / "sphere.tsp");
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: tessaplot-samples FOLDER\n", stderr);
        return 2;
    }
    try {
        const std::filesystem::path folder(argv[1]);
        std::filesystem::create_directories(folder);
        writeGridVertex(folder);
        writeCylinder(folder);
        writeSphere(folder);
        tessaplot::samples::writeSurfaces(folder);
        tessaplot::samples::writeVolumes(folder);
        tessaplot::samples::writeFlatPlots(folder);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "tessaplot-samples: %s\n", failure.what());
        return 1;
    }
    return 0;
}

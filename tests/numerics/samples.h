#pragma once

#include <cmath>
#include <random>
#include <utility>
#include <vector>

#include "numerics/grid.h"

namespace tessaplot::numerics::test {

/// Ways to scatter points, each hard on another part of the gridding.
enum class Scatter { Random, Clustered, Collinear, Duplicates, OnNodes, Wide, Overflowing, Tiny };

inline constexpr std::pair<Scatter, const char*> allScatters[] = {
    {Scatter::Random, "random"},           {Scatter::Clustered, "clustered"},
    {Scatter::Collinear, "collinear"},     {Scatter::Duplicates, "duplicates"},
    {Scatter::OnNodes, "on nodes"},        {Scatter::Wide, "wide"},
    {Scatter::Overflowing, "overflowing"}, {Scatter::Tiny, "tiny"}};

/// The size of the square that a scatter fills, centred at 0.
inline double extentOf(Scatter scatter) {
    if (scatter == Scatter::Wide) return 30000;           // Squared distances pass the mark of a used point.
    if (scatter == Scatter::Overflowing) return 1.5e154;  // Some squared distances pass the largest number.
    return scatter == Scatter::Tiny ? 1e-9 : 20;
}

/// Four columns of scattered points.
struct Cloud {
    Cloud(Scatter scatter, int points, unsigned seed) {
        std::mt19937_64 random(seed);
        std::uniform_real_distribution<double> unit(-0.5, 0.5);
        std::uniform_int_distribution<int> few(-5, 5);
        const double extent = extentOf(scatter);
        for (int i = 0; i < points; ++i) {
            double p = unit(random) * extent;
            double q = unit(random) * extent;
            double r = unit(random) * extent;
            if (scatter == Scatter::Clustered && i % 7 != 0) {
                p = 3 + p * 1e-3;
                q = -4 + q * 1e-3;
                r = 2 + r * 1e-3;
            } else if (scatter == Scatter::Collinear) {
                q = 2 * p;
                r = -p;
            } else if (scatter == Scatter::Duplicates || scatter == Scatter::OnNodes) {
                p = few(random) * (scatter == Scatter::OnNodes ? 2 : 0.37);
                q = few(random) * (scatter == Scatter::OnNodes ? 2 : 0.37);
                r = few(random);
            }
            x.push_back(p);
            y.push_back(q);
            z.push_back(r);
            w.push_back(std::sin(p) + unit(random));
        }
    }

    std::vector<double> x, y, z, w;
};

/// The cloud as a surface in the given coordinates, with a small grid over its extent.
inline ScatteredSurface surfaceOf(const Cloud& cloud, SurfaceCoordinates coordinates, double extent, int steps = 11) {
    ScatteredSurface surface;
    surface.coordinates = coordinates;
    surface.x = cloud.x, surface.y = cloud.y, surface.z = cloud.z, surface.c = cloud.w;
    surface.MinX = surface.MinY = surface.MinZ = surface.MinA = surface.MinB = -extent / 2;
    surface.MaxX = surface.MaxY = surface.MaxZ = surface.MaxA = surface.MaxB = extent / 2;
    surface.StepsX = steps;
    surface.StepsY = steps + 2;
    surface.applicationPoints = surface.Points();
    return surface;
}

inline ScatteredVolume volumeOf(const Cloud& cloud, double extent, int steps = 5) {
    ScatteredVolume volume;
    volume.x = cloud.x, volume.y = cloud.y, volume.z = cloud.z, volume.v = cloud.w;
    volume.MinX = volume.MinY = volume.MinZ = -extent / 2;
    volume.MaxX = volume.MaxY = volume.MaxZ = extent / 2;
    volume.StepsX = steps;
    volume.StepsY = steps + 1;
    volume.StepsZ = steps + 2;
    volume.applicationPoints = volume.Points();
    return volume;
}

/// Place of node (i, j, k) in columns for the given counts of nodes along the first two axes.
inline std::size_t placeOf(int stepsX, int stepsY, int i, int j, int k = 0) {
    const auto strideJ = static_cast<std::size_t>(stepsX) + 1;
    const std::size_t strideK = strideJ * (static_cast<std::size_t>(stepsY) + 1);
    return static_cast<std::size_t>(i) + strideJ * static_cast<std::size_t>(j) + strideK * static_cast<std::size_t>(k);
}

/// Columns for a grid, all elements -1 at first.
struct SurfaceColumns {
    explicit SurfaceColumns(const ScatteredSurface& surface) {
        const std::size_t size = placeOf(surface.StepsX, surface.StepsY, 0, 0, 1);
        for (std::vector<double>* column : {&x, &y, &z, &c, &a, &b, &d})
            column->assign(size, -1);
    }
    SurfaceNodes nodes() { return {.x = x, .y = y, .z = z, .c = c, .a = a, .b = b, .d = d}; }
    bool operator==(const SurfaceColumns&) const = default;

    std::vector<double> x, y, z, c, a, b, d;
};

struct VolumeColumns {
    explicit VolumeColumns(const ScatteredVolume& volume) {
        const std::size_t size = placeOf(volume.StepsX, volume.StepsY, 0, 0, volume.StepsZ + 1);
        for (std::vector<double>* column : {&x, &y, &z, &v, &c})
            column->assign(size, -1);
    }
    VolumeNodes nodes() { return {.x = x, .y = y, .z = z, .v = v, .c = c}; }
    bool operator==(const VolumeColumns&) const = default;

    std::vector<double> x, y, z, v, c;
};

}  // namespace tessaplot::numerics::test

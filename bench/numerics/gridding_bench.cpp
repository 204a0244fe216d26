#include <benchmark/benchmark.h>

#include "numerics/grid.h"
#include "numerics/inverse_distance.h"
#include "numerics/linear_solver.h"
#include "numerics/linear_system.h"
#include "numerics/nearest_points.h"
#include "numerics/radial_basis.h"
#include "peerbench/gen.h"

// Each gridding method on all nodes at once beside its plain routine, node by node, over the number of points. The rate
// of items is the number of nodes a second, value and colour together.

namespace tessaplot::bench {

namespace {

using numerics::ScatteredSurface;
using numerics::ScatteredVolume;

constexpr int surfaceSteps = 100;
constexpr int volumeSteps = 50;

ScatteredSurface surfaceOf(const Points& points) {
    ScatteredSurface surface;
    surface.x = points.x;
    surface.y = points.y;
    surface.z = points.z;
    surface.c = points.c;
    surface.MinX = surface.MinY = -10;
    surface.MaxX = surface.MaxY = 10;
    surface.StepsX = surface.StepsY = surfaceSteps;
    surface.applicationPoints = surface.Points();
    return surface;
}

/// The points as a volume; their third coordinate is drawn anew.
struct VolumePoints {
    explicit VolumePoints(std::size_t count) : plane(scatteredPoints(7, count)) {
        Random random(8);
        for (double& z : plane.z)
            z = random.between(-10, 10);
    }

    ScatteredVolume view() const {
        ScatteredVolume volume;
        volume.x = plane.x;
        volume.y = plane.y;
        volume.z = plane.z;
        volume.v = plane.c;
        volume.MinX = volume.MinY = volume.MinZ = -10;
        volume.MaxX = volume.MaxY = volume.MaxZ = 10;
        volume.StepsX = volume.StepsY = volume.StepsZ = volumeSteps;
        volume.applicationPoints = volume.Points();
        return volume;
    }

    Points plane;
};

void surfaceGrid(benchmark::State& state, int method) {
    const Points points = scatteredPoints(5, static_cast<std::size_t>(state.range(0)));
    const ScatteredSurface surface = surfaceOf(points);
    constexpr std::size_t elements = (surfaceSteps + 1) * (surfaceSteps + 1);
    std::vector<double> x(elements), y(elements), z(elements), c(elements);
    for ([[maybe_unused]] auto _ : state)
        numerics::gridSurface(surface, method, {}, {.x = x, .y = y, .z = z, .c = c, .a = {}, .b = {}, .d = {}});
    state.SetItemsProcessed(state.iterations() * surfaceSteps * surfaceSteps);
}

void plainNode(const ScatteredSurface& surface, int method, double x, double y, bool colour, double& value) {
    switch (method) {
        case 1:
            colour ? numerics::NDSC(surface, x, y, value, 5) : numerics::NDS(surface, x, y, value, 5);
            break;
        case 2:
            value = numerics::Shepard(surface, x, y, colour);
            break;
        case 3:
            numerics::RBF(surface, x, y, colour, value);
            break;
        default:
            numerics::TPS(surface, x, y, colour, value);
            break;
    }
}

void plainSurfaceNode(benchmark::State& state, int method) {
    const Points points = scatteredPoints(5, static_cast<std::size_t>(state.range(0)));
    const ScatteredSurface surface = surfaceOf(points);
    Random random(6);
    double value = 0;
    for ([[maybe_unused]] auto _ : state) {
        const double x = random.between(-10, 10);
        const double y = random.between(-10, 10);
        plainNode(surface, method, x, y, false, value);
        plainNode(surface, method, x, y, true, value);
        benchmark::DoNotOptimize(value);
    }
    state.SetItemsProcessed(state.iterations());
}

void volumeGrid(benchmark::State& state, int method) {
    const VolumePoints points(static_cast<std::size_t>(state.range(0)));
    constexpr std::size_t elements = (volumeSteps + 1) * (volumeSteps + 1) * (volumeSteps + 1);
    std::vector<double> x(elements), y(elements), z(elements), v(elements), c(elements);
    for ([[maybe_unused]] auto _ : state)
        numerics::gridVolume(points.view(), method, {}, {.x = x, .y = y, .z = z, .v = v, .c = c});
    state.SetItemsProcessed(state.iterations() * volumeSteps * volumeSteps * volumeSteps);
}

void plainVolumeNode(benchmark::State& state, int method) {
    const VolumePoints points(static_cast<std::size_t>(state.range(0)));
    const ScatteredVolume volume = points.view();
    Random random(6);
    double value = 0;
    for ([[maybe_unused]] auto _ : state) {
        const double x = random.between(-10, 10);
        if (method == 101)
            numerics::NDS4D(volume, x, -x, x, value, 5);
        else
            value = numerics::Shepard4D(volume, x, -x, x);
        benchmark::DoNotOptimize(value);
    }
    state.SetItemsProcessed(state.iterations());
}

double randomCoefficient(Random& random) {
    return random.between(-1, 1);
}

void fastSolver(benchmark::State& state) {
    const auto n = static_cast<std::size_t>(state.range(0));
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        Random random(9);
        numerics::LinearSystem system(n);
        for (std::size_t i = 0; i < n; ++i)
            for (double& coefficient : system.coefficients(i))
                coefficient = randomCoefficient(random);
        state.ResumeTiming();
        benchmark::DoNotOptimize(system.solve());
    }
    state.SetComplexityN(state.range(0));
}

void plainSolver(benchmark::State& state) {
    const auto n = static_cast<int>(state.range(0));
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        Random random(9);
        numerics::Table a = numerics::makeTable("a", n, n);
        numerics::Table b = numerics::makeTable("b", n);
        for (int i = 1; i <= n; ++i)
            for (int j = 1; j <= n; ++j)
                a(i, j) = randomCoefficient(random);
        state.ResumeTiming();
        benchmark::DoNotOptimize(numerics::SolveLinear(n, a, b));
    }
    state.SetComplexityN(state.range(0));
}

void manyPoints(benchmark::internal::Benchmark* bench) {
    for (const int points : {100, 1000, 10000})
        bench->Arg(points);
    bench->Unit(benchmark::kMillisecond)->UseRealTime();
}

void radialPoints(benchmark::internal::Benchmark* bench) {
    for (const int points : {60, 120, 240, 497})
        bench->Arg(points);
    bench->Unit(benchmark::kMillisecond)->UseRealTime();
}

void unknowns(benchmark::internal::Benchmark* bench) {
    for (const int n : {125, 250, 500})
        bench->Arg(n);
    bench->Unit(benchmark::kMillisecond)->Complexity(benchmark::oNCubed);
}

BENCHMARK_CAPTURE(surfaceGrid, NDS, 1)->Apply(manyPoints);
BENCHMARK_CAPTURE(plainSurfaceNode, NDS, 1)->Apply(manyPoints);
BENCHMARK_CAPTURE(surfaceGrid, Shepard, 2)->Apply(manyPoints);
BENCHMARK_CAPTURE(plainSurfaceNode, Shepard, 2)->Apply(manyPoints);
BENCHMARK_CAPTURE(surfaceGrid, RBF, 3)->Apply(radialPoints);
BENCHMARK_CAPTURE(plainSurfaceNode, RBF, 3)->Apply(radialPoints);
BENCHMARK_CAPTURE(surfaceGrid, TPS, 4)->Apply(radialPoints);
BENCHMARK_CAPTURE(plainSurfaceNode, TPS, 4)->Apply(radialPoints);
BENCHMARK_CAPTURE(surfaceGrid, PolyFit, 5)->Apply(manyPoints);
BENCHMARK_CAPTURE(volumeGrid, NDS4D, 101)->Apply(manyPoints);
BENCHMARK_CAPTURE(plainVolumeNode, NDS4D, 101)->Apply(manyPoints);
BENCHMARK_CAPTURE(volumeGrid, Shepard4D, 102)->Apply(manyPoints);
BENCHMARK_CAPTURE(plainVolumeNode, Shepard4D, 102)->Apply(manyPoints);
BENCHMARK(fastSolver)->Apply(unknowns);
BENCHMARK(plainSolver)->Apply(unknowns);

}  // namespace

}  // namespace tessaplot::bench

BENCHMARK_MAIN();

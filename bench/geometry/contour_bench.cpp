#include <cmath>
#include <random>
#include <vector>

#include <benchmark/benchmark.h>

#include "geometry/contour.h"
#include "geometry/plain_contour.h"

// Contours of smooth and of rough fields beside the plain form, from few levels to many, and the nudge where levels
// lie as close together as it reaches.

namespace tessaplot::geometry {
namespace {

constexpr int side = maxContourNodes;

std::vector<double> waves(double height) {
    std::vector<double> values;
    for (int i = 0; i < side; ++i)
        for (int j = 0; j < side; ++j)
            values.push_back(height * (std::sin(0.04 * i) * std::cos(0.04 * j) + 0.003 * j));
    return values;
}

std::vector<double> noise(double range) {
    std::mt19937 random(6);
    std::uniform_real_distribution<double> value(0, range);
    std::vector<double> values(side * side);
    for (double& z : values)
        z = value(random);
    return values;
}

/// Each run nudges a fresh copy of the values.
template <class Trace>
void measure(benchmark::State& state, const std::vector<double>& values, Trace trace) {
    std::size_t segments = 0;
    for (auto _ : state) {
        state.PauseTiming();
        std::vector<double> z = values;
        const ContourGrid grid = {side, side, 1, 1, 0, 0, z, side};
        state.ResumeTiming();
        segments = trace(grid).segments.size();
    }
    state.counters["segments"] = static_cast<double>(segments);
}

struct Field {
    const char* name;
    std::vector<double> values;
    double interval;
};

const Field fields[] = {
    {"waves at 20 levels", waves(1), 0.15},
    {"noise at 20 levels", noise(1), 0.05},
    {"noise within reach of 20 levels", noise(0.002), 1e-4},
    {"waves at 1000 levels", waves(1), 0.003},
    {"waves at levels a nudge apart", waves(0.02), 1.0001e-5},
};

const Field& fieldOf(benchmark::State& state) {
    const Field& field = fields[state.range(0)];
    state.SetLabel(field.name);
    return field;
}

void contours(benchmark::State& state) {
    const Field& field = fieldOf(state);
    ContourOptions options;
    options.interval = field.interval;
    measure(state, field.values, [&](const ContourGrid& grid) { return CContour::Contour(grid, options); });
}
BENCHMARK(contours)->DenseRange(0, 4)->Unit(benchmark::kMillisecond);

void contoursOnASurface(benchmark::State& state) {
    const Field& field = fieldOf(state);
    ContourOptions options;
    options.interval = field.interval;
    measure(state, field.values,
            [&](const ContourGrid& grid) { return CContour::Contour3D(grid, field.values, options); });
}
BENCHMARK(contoursOnASurface)->DenseRange(0, 4)->Unit(benchmark::kMillisecond);

void plainContoursOnASurface(benchmark::State& state) {
    const Field& field = fieldOf(state);
    measure(state, field.values,
            [&](const ContourGrid& grid) { return test::plainContour3D(grid, field.values, field.interval); });
}
BENCHMARK(plainContoursOnASurface)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tessaplot::geometry

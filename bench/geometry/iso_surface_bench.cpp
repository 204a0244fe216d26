#include <cmath>
#include <random>
#include <string>

#include <benchmark/benchmark.h>

#include "geometry/iso_surface.h"
#include "geometry/plain_iso_surface.h"

// The iso-surface of a smooth closed field, of noise that crosses most cells and of one without a crossing, beside the
// plain form, which makes a record for each node and each cell by itself.

namespace tessaplot::geometry {
namespace {

constexpr int highest = maxIsoIndex;

test::Volume dentedBall() {
    test::Volume volume(highest, highest, highest);
    volume.fill([](double x, double y, double z) {
        return std::sqrt(x * x + y * y + z * z) + 0.05 * std::sin(6 * x) * std::sin(6 * y) * std::sin(6 * z);
    });
    return volume;
}

test::Volume noise() {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> value(0, 1);
    test::Volume volume(highest, highest, highest);
    volume.fill([&](double, double, double) { return value(random); });
    return volume;
}

std::size_t surface(const test::Volume& volume, double level) {
    return IsoSurface(volume.nx, volume.ny, volume.nz, volume.X, volume.Y, volume.Z, volume.V, level).triangles.size();
}

std::size_t plainSurface(const test::Volume& volume, double level) {
    return test::plainIsoSurface(volume, level).size();
}

using Routine = std::size_t (*)(const test::Volume&, double);

void measure(benchmark::State& state, Routine extract, test::Volume (*make)(), double level) {
    const test::Volume volume = make();
    std::size_t triangles = 0;
    for (auto _ : state)
        triangles = extract(volume, level);
    state.counters["triangles"] = static_cast<double>(triangles);
}

[[maybe_unused]] const bool registered = [] {
    for (const auto& [form, routine] : {std::pair("", Routine(surface)), std::pair("plain: ", Routine(plainSurface))}) {
        const std::string start = form;
        const auto add = [&start, run = routine](const char* field, test::Volume (*make)(), double level) {
            benchmark::RegisterBenchmark((start + field).c_str(), measure, run, make, level)
                ->Unit(benchmark::kMillisecond);
        };
        add("ball with dents", dentedBall, 0.85);
        add("level without a crossing", dentedBall, 5);
        add("noise", noise, 0.5);
    }
    return true;
}();

}  // namespace
}  // namespace tessaplot::geometry

#include <string>

#include <benchmark/benchmark.h>

#include "geometry/delaunay.h"
#include "geometry/plain_delaunay.h"
#include "geometry/point_clouds.h"

// The triangulation beside its plain form, a walk over all triangles for each point, from few points to as many as the
// list of triangles takes.

namespace tessaplot::geometry {
namespace {

using Routine = Triangulation (*)(std::int32_t n, std::span<double> X, std::span<double> Y);

void measure(benchmark::State& state, Routine triangulate, const test::Layout& layout) {
    test::PointCloud cloud = test::cloudOf(layout, static_cast<int>(state.range(0)), 1005);
    for (auto _ : state)
        benchmark::DoNotOptimize(triangulate(cloud.n(), cloud.x, cloud.y));
    state.SetComplexityN(state.range(0));
}

void registerAll() {
    for (const test::Layout& layout : test::layouts) {
        const std::string name = layout.name;
        // The others come to the limit of triangles or have none.
        if (name.find("ring") == 0 || name == "duplicates" || name == "half units" || name == "one unit") continue;
        for (const auto& [form, routine] :
             {std::pair("", Routine(Triangulate)), std::pair("plain: ", Routine(test::plainTriangulate))}) {
            auto* bench = benchmark::RegisterBenchmark((form + name).c_str(), measure, routine, layout);
            bench->Unit(benchmark::kMillisecond)->Arg(300)->Arg(600)->Arg(1200)->Arg(2400)->Arg(4900)->Complexity();
        }
    }
}

}  // namespace
}  // namespace tessaplot::geometry

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    tessaplot::geometry::registerAll();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

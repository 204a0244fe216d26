// One step of a slider on the value of an iso-surface of about 70,000 triangles in the largest volume that can have
// one: the value changes, the scene is recorded anew in the quick mode of a drag, and drawn at 1000 by 800 pixels.
// Medians in milliseconds of the parts of the step: of the time that passed, and, as `work`, of the processor time of
// all threads, which a load on the machine hardly changes.

#include <algorithm>
#include <cmath>
#include <ctime>
#include <memory>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "core/app_state.h"
#include "core/refresh.h"
#include "geometry/iso_surface.h"
#include "gl/gl_calls.h"
#include "gl/offscreen_context.h"
#include "gl/replay.h"

namespace tessaplot::core {
namespace {

constexpr int nodes = 102;
constexpr int width = 1000;
constexpr int height = 800;

/// A triply periodic field, whose surfaces of equal value run through the whole volume.
double field(double x, double y, double z) {
    return std::sin(x) * std::cos(y) + std::sin(y) * std::cos(z) + std::sin(z) * std::cos(x);
}

void fillVolume(AppState& state) {
    state.scene.SceneMode = scene::mode4D;
    state.panel.selectKind(data::DataKind::RegularVolume);
    data::ClsData& data = state.TheData;
    data.DataDim = 2;
    data.DataType = 1;
    data.StepsX = data.StepsY = data.StepsZ = nodes;
    for (data::Array* array : {&data.Reg4DX, &data.Reg4DY, &data.Reg4DZ, &data.Reg4DV})
        array->allocate(nodes, nodes, nodes);
    constexpr double wave = 0.045;
    for (int k = 0; k < nodes; ++k) {
        for (int j = 0; j < nodes; ++j) {
            for (int i = 0; i < nodes; ++i) {
                data.Reg4DX(i, j, k) = i;
                data.Reg4DY(i, j, k) = j;
                data.Reg4DZ(i, j, k) = k;
                data.Reg4DV(i, j, k) = field(wave * i, wave * j, wave * k);
            }
        }
    }
    data.Normalize(state.scaling);
}

graphs::Cls9& showIsoSurface(AppState& state) {
    state.TheAxis.SetDefault();
    auto graph = std::make_shared<graphs::Cls9>();
    graph->GraphType = graphs::graph_type::isoSurface;
    graph->StepU = graph->StepV = graph->StepH = nodes - 1;
    graph->Material = 13;
    graph->FillStyle = 5;
    state.ShownGraphs.Graphs.push_back(graph);
    state.ShownGraphs.setAngles(0, -30, 45);
    int screenHeight = height;
    state.TheView.SetScreen(width, screenHeight);
    centreScene(state);
    fitCamera(state);
    state.QuickDraw = true;
    return *graph;
}

double seconds(clockid_t id) {
    timespec time{};
    clock_gettime(id, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

double median(std::vector<double> times) {
    std::sort(times.begin(), times.end());
    return times.empty() ? 0 : times[times.size() / 2];
}

/// Milliseconds that a part of each step took.
class Times {
 public:
    template <class Work>
    void take(Work&& work) {
        const double clock = seconds(CLOCK_MONOTONIC);
        const double processor = seconds(CLOCK_PROCESS_CPUTIME_ID);
        work();
        worked_.push_back(1000 * (seconds(CLOCK_PROCESS_CPUTIME_ID) - processor));
        passed_.push_back(1000 * (seconds(CLOCK_MONOTONIC) - clock));
    }
    void report(benchmark::State& run, const std::string& part) const {
        run.counters[part + "_ms"] = median(passed_);
        run.counters[part + "_work_ms"] = median(worked_);
    }

 private:
    std::vector<double> passed_;
    std::vector<double> worked_;
};

void isoSliderStep(benchmark::State& run) {
    AppState state;
    fillVolume(state);
    graphs::Cls9& graph = showIsoSurface(state);
    const gl::OffscreenContext context;
    gl::Replay replay;
    Times extraction;
    Times recording;
    Times drawing;
    const data::ClsData& data = state.TheData;
    std::size_t triangles = 0;
    double value = 0;
    const auto step = [&] {
        graph.IsoSurValue = 0.2 * std::sin(value += 0.1);
        RebuildScene(state);
    };
    const auto draw = [&] {
        replay.draw(recordDisplay(state), width, height);
        glFinish();
    };
    step();
    draw();
    for ([[maybe_unused]] const auto once : run) {
        recording.take(step);
        drawing.take(draw);
        run.PauseTiming();
        extraction.take([&] {
            triangles = geometry::IsoSurface(nodes - 2, nodes - 2, nodes - 2, data.Reg4DX, data.Reg4DY, data.Reg4DZ,
                                             data.Reg4DV, graph.IsoSurValue / state.scaling.ScaleV)
                            .triangles.size();
        });
        run.ResumeTiming();
    }
    run.counters["triangles"] = static_cast<double>(triangles);
    extraction.report(run, "extract");
    recording.report(run, "extract_and_record");
    drawing.report(run, "draw");
}
BENCHMARK(isoSliderStep)->Unit(benchmark::kMillisecond)->Iterations(40);

}  // namespace
}  // namespace tessaplot::core

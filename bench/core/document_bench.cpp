#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

#include <benchmark/benchmark.h>
#include <malloc.h>

#include "base/number_text.h"
#include "core/app_state.h"
#include "core/document.h"

namespace tessaplot::core {
namespace {

constexpr int side = 140;

/// A surface of 140 by 140 nodes with a grid model, every number with all of its digits.
const std::filesystem::path& exampleDocument() {
    static const std::filesystem::path path = [] {
        AppState state;
        state.panel.setText(1, std::to_string(side));
        state.panel.setText(2, std::to_string(side));
        state.panel.layOut();
        for (int i = 0; i < side; ++i) {
            for (int j = 0; j < side; ++j) {
                const double x = -10 + 20.0 * i / (side - 1);
                const double y = -10 + 20.0 * j / (side - 1);
                const int row = i * side + j + 1;
                state.panel.setCell(1, row, base::generalText(x));
                state.panel.setCell(2, row, base::generalText(y));
                state.panel.setCell(3, row, base::generalText(std::sin(0.5 * x) * std::cos(0.4 * y)));
                state.panel.setCell(4, row, base::generalText(0.01 * x * x - 0.02 * y));
            }
        }
        auto graph = std::make_shared<graphs::Cls9>();
        graph->GraphType = graphs::graph_type::gridModel;
        graph->StepU = graph->StepV = side - 1;
        state.ShownGraphs.Graphs.push_back(graph);
        auto file = std::filesystem::temp_directory_path() / "tessaplot-bench.tsp";
        std::filesystem::remove(file);
        writeDocumentFile(file, documentText(partsOf(state, state.ShownGraphs)));
        return file;
    }();
    return path;
}

void threePlainPassesWithStrtod(benchmark::State& run) {
    for (auto _ : run) {
        std::ifstream file(exampleDocument(), std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        for (int pass = 0; pass < 3; ++pass) {
            double sum = 0;
            const char* at = bytes.c_str();
            const char* end = at + bytes.size();
            while (at < end) {
                char* next = nullptr;
                sum += std::strtod(at, &next);
                at = next == at ? at + 1 : next;
            }
            benchmark::DoNotOptimize(sum);
        }
    }
}
BENCHMARK(threePlainPassesWithStrtod)->Unit(benchmark::kMillisecond);

void documentIntoPanelAndDataSet(benchmark::State& run) {
    for (auto _ : run) {
        AppState state;
        auto document = readDocument(readDocumentFile(exampleDocument()));
        state.panel = std::move(document->panel);
        state.TheData.GetData(state.panel, state.scaling, state.gridding, state.desktop);
        benchmark::DoNotOptimize(state.TheData.MaxZ);
    }
}
BENCHMARK(documentIntoPanelAndDataSet)->Unit(benchmark::kMillisecond);

/// What the heap holds once a document is open, by the allocator's own count.
void memoryOfAnOpenDocument(benchmark::State& run) {
    double bytesPerRow = 0;
    for (auto _ : run) {
        static_cast<void>(exampleDocument());
        malloc_trim(0);
        const auto before = mallinfo2();
        AppState state;
        auto document = readDocument(readDocumentFile(exampleDocument()));
        state.panel = std::move(document->panel);
        state.TheData.GetData(state.panel, state.scaling, state.gridding, state.desktop);
        document.reset();
        const auto after = mallinfo2();
        const auto used =
            static_cast<double>(after.uordblks + after.hblkhd) - static_cast<double>(before.uordblks + before.hblkhd);
        bytesPerRow = used / (side * side);
    }
    run.counters["bytes_per_row"] = bytesPerRow;
}
BENCHMARK(memoryOfAnOpenDocument)->Unit(benchmark::kMillisecond);

void savingADocument(benchmark::State& run) {
    AppState state;
    auto document = readDocument(readDocumentFile(exampleDocument()));
    state.panel = std::move(document->panel);
    for (auto _ : run)
        benchmark::DoNotOptimize(documentText(partsOf(state, state.ShownGraphs)));
}
BENCHMARK(savingADocument)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tessaplot::core

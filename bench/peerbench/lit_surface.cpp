#include "peerbench/lit_surface.h"

#include <cmath>
#include <memory>
#include <string>

#include <unistd.h>

#include "base/number_text.h"
#include "core/app_state.h"
#include "core/document.h"

namespace tessaplot::bench {

namespace {

constexpr int side = 140;

double heightAt(double x, double y) {
    return 3 * std::sin(0.8 * x) * std::cos(0.6 * y) * std::exp(-(x * x + y * y) / 80);
}

void fillPanel(data::DataPanel& panel) {
    panel.setText(1, std::to_string(side));
    panel.setText(2, std::to_string(side));
    panel.layOut();
    for (int i = 0; i < side; ++i) {
        for (int j = 0; j < side; ++j) {
            const double x = -10 + 20.0 * i / (side - 1);
            const double y = -10 + 20.0 * j / (side - 1);
            const int row = i * side + j + 1;
            const std::string height = base::generalText(heightAt(x, y));
            panel.setCell(1, row, base::generalText(x));
            panel.setCell(2, row, base::generalText(y));
            panel.setCell(3, row, height);
            panel.setCell(4, row, height);
        }
    }
}

std::shared_ptr<graphs::Cls9> surface() {
    auto graph = std::make_shared<graphs::Cls9>();
    graph->ID = 1;
    graph->GraphType = graphs::graph_type::surface;
    graph->StepU = graph->StepV = side - 1;
    graph->FillStyle = 5;
    graph->ColorName = "Rainbow";
    graph->Show = 3;
    graph->Smoothness = 3;
    graph->Material = 13;
    return graph;
}

}  // namespace

void writeLitSurface(const std::filesystem::path& path) {
    core::AppState state;
    fillPanel(state.panel);
    state.ShownGraphs.Graphs.push_back(surface());
    state.TheAxis.Show = true;
    core::writeDocumentFile(path, core::documentText(core::partsOf(state, state.ShownGraphs)));
}

std::filesystem::path writeLitSurface() {
    auto path = std::filesystem::temp_directory_path() / ("tessaplot-lit-" + std::to_string(::getpid()) + ".tsp");
    writeLitSurface(path);
    return path;
}

}  // namespace tessaplot::bench

#pragma once

#include <cmath>
#include <memory>
#include <string>

#include "core/app_state.h"
#include "core/document.h"
#include "core/graph_list.h"

namespace tessaplot::core {

/// Fills the panel with data of a kind that every graph of it can be drawn from: counts, limits and cells.
inline void fillPanel(data::DataPanel& panel, data::DataKind kind) {
    panel = {};
    panel.selectKind(kind);
    for (int box = 1; box <= 10; ++box)
        panel.setText(box, std::to_string(box % 2 == 1 ? -box : box + 20));
    const bool irregular = data::isIrregular(kind);
    for (const int box : {1, 2, 4})
        if (!irregular) panel.setText(box, "3");
    if (irregular) {
        panel.setText(3, "27");
        for (const int box : {4, 7, 10})
            panel.setText(box, "4");
    }
    panel.layOut();
    for (int row = 1; row < panel.gridRows(); ++row) {
        const int n = row - 1;
        panel.setCell(1, row, std::to_string(n / 3 % 3) + ".5");
        panel.setCell(2, row, std::to_string(n % 3 + 1));
        panel.setCell(3, row, std::to_string(n / 9 + 0.25 * (n % 5)));
        panel.setCell(4, row, std::to_string(-n));
    }
}

inline GraphPtr addGraph(AppState& state, int graphType) {
    auto graph = std::make_shared<graphs::Cls9>();
    graph->ID = ++state.LastGraphId;
    graph->GraphType = graphType;
    graph->StepU = 2;
    graph->StepV = 2;
    graph->GridColor = 255;
    graph->GridWidth = 1;
    state.AllGraphs.Graphs.push_back(graph);
    state.List1.add(graph, state.scene.SceneMode);
    return graph;
}

/// A state with regular surface data and one grid model, shown.
inline void showGridModel(AppState& state) {
    fillPanel(state.panel, data::DataKind::RegularSurface);
    state.TheData.GetData(state.panel, state.scaling, state.gridding, state.desktop);
    addGraph(state, graphs::graph_type::gridModel);
    setTick(state, 0, true);
}

}  // namespace tessaplot::core

#include "core/graph_list.h"

#include <algorithm>
#include <string>
#include <utility>

#include "base/failure.h"
#include "core/app_state.h"
#include "core/refresh.h"

namespace tessaplot::core {

void GraphList::add(const GraphPtr& graph, int sceneMode) {
    std::string label = graphs::listLabel(*graph, sceneMode);
    if (!label.empty()) entries.push_back({graph, std::move(label), false});
}

void GraphList::remove(const graphs::Cls9& graph) {
    std::erase_if(entries, [&](const Entry& entry) { return entry.graph.get() == &graph; });
    selected = std::min(selected, static_cast<int>(entries.size()) - 1);
}

void GraphList::clear() {
    entries.clear();
    selected = -1;
}

void RefreshShownGraphs(AppState& state) {
    for (const GraphList::Entry& entry : state.List1.entries) {
        const bool shown = GraphIsShown(state, *entry.graph);
        if (!entry.ticked && shown) state.ShownGraphs.remove(*entry.graph);
        if (entry.ticked && !shown) state.ShownGraphs.Graphs.push_back(entry.graph);
    }
    RebuildScene(state);
    if (std::exchange(state.FitOnRefresh, false))
        fitView(state);
    else
        state.desktop.displayPicture();
}

void setTick(AppState& state, int entry, bool ticked) {
    auto& entries = state.List1.entries;
    if (entry < 0 || entry >= static_cast<int>(entries.size()))
        base::failSubscript("The graph list", entry, 0, static_cast<int>(entries.size()) - 1);
    GraphList::Entry& chosen = entries[static_cast<std::size_t>(entry)];
    if (chosen.ticked == ticked) return;
    const std::vector<GraphPtr> shownBefore = state.ShownGraphs.Graphs;
    chosen.ticked = ticked;
    try {
        RefreshShownGraphs(state);
    } catch (...) {
        chosen.ticked = !ticked;
        state.ShownGraphs.Graphs = shownBefore;
        throw;
    }
}

bool GraphIsShown(const AppState& state, const graphs::Cls9& graph) {
    return state.ShownGraphs.contains(graph);
}

void DeleteGraph(AppState& state, int index) {
    auto& all = state.AllGraphs.Graphs;
    if (all.empty()) return;
    const int count = static_cast<int>(all.size());
    if (index < 1 || index > count) base::failSubscript("The graphs", index, 1, count);
    const GraphPtr graph = all[static_cast<std::size_t>(index) - 1];
    state.ShownGraphs.remove(*graph);
    state.AllGraphs.remove(*graph);
    state.List1.remove(*graph);
    RebuildScene(state);
    state.desktop.displayPicture();
}

void DeleteAllGraphs(AppState& state) {
    state.ShownGraphs.Graphs.clear();
    state.AllGraphs.Graphs.clear();
    state.List1.clear();
    RebuildScene(state);
    state.desktop.displayPicture();
}

}  // namespace tessaplot::core

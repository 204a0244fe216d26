#include "core/graph_commands.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "base/failure.h"
#include "core/document.h"
#include "core/graph_list.h"
#include "core/record_reader.h"

namespace tessaplot::core {

namespace {

namespace type = graphs::graph_type;

constexpr int newestGeneration = 4;

struct Angles {
    double roll;
    double pitch;
    double yaw;
};

constexpr Angles flat{0, 0, 0};
constexpr Angles spatial{0, -30, 45};

Angles anglesFor(int graphType, int sceneMode) {
    constexpr int oldMode3D = 6;
    switch (graphType) {
        case type::colorMap:
        case type::contour:
        case type::vector:
            return flat;
        case type::point:
            return sceneMode == scene::mode3D || sceneMode == oldMode3D || sceneMode == scene::mode4D ? spatial : flat;
        default:
            return spatial;
    }
}

/// Puts a graph into the document for good only with `keep`.
class AddedGraph {
 public:
    AddedGraph(AppState& state, GraphPtr graph)
        : state_(state),
          graph_(std::move(graph)),
          roll_(state.ShownGraphs.RotRoll),
          pitch_(state.ShownGraphs.RotPitch),
          yaw_(state.ShownGraphs.RotYaw) {}
    ~AddedGraph() {
        if (kept_) return;
        state_.ShownGraphs.remove(*graph_);
        state_.AllGraphs.remove(*graph_);
        state_.List1.remove(*graph_);
        state_.ShownGraphs.setAngles(roll_, pitch_, yaw_);
    }
    AddedGraph(const AddedGraph&) = delete;
    AddedGraph& operator=(const AddedGraph&) = delete;

    void list(bool ticked) {
        const std::size_t before = state_.List1.entries.size();
        state_.List1.add(graph_, state_.scene.SceneMode);
        if (ticked && state_.List1.entries.size() > before) setTick(state_, static_cast<int>(before), true);
    }
    void keep() { kept_ = true; }

 private:
    AppState& state_;
    GraphPtr graph_;
    double roll_;
    double pitch_;
    double yaw_;
    bool kept_ = false;
};

const GraphList::Entry* selectedEntry(const AppState& state) {
    const auto selected = static_cast<std::size_t>(state.List1.selected);
    return selected < state.List1.entries.size() ? &state.List1.entries[selected] : nullptr;
}

void requireSlots(std::string_view text) {
    if (std::ranges::count(text, ' ') >= copyBufferSlots)
        throw base::Failure(base::FailureCode::BadInput, "The clipboard holds more text than a graph has.");
}

/// 1, 4 and 6 are numbers of old modes.
bool goesWith(int sceneMode, std::string_view copiedMode) {
    switch (sceneMode) {
        case scene::mode3D:
            return copiedMode == "3" || copiedMode == "6";
        case scene::mode2D:
            return copiedMode == "7";
        case scene::mode4D:
            return true;
        case 1:
            return copiedMode == "1" || copiedMode == "4";
        default:
            return false;
    }
}

bool isVolumePlot(const graphs::Cls9& graph) {
    return graph.GraphType >= type::scatter4D && graph.GraphType <= type::isoSurface;
}

/// Every kind that a person can copy has a label; a point has one in its modes.
bool isKnownKind(const graphs::Cls9& graph) {
    return graph.GraphType == type::point || !graphs::listLabel(graph, scene::mode3D).empty();
}

}  // namespace

GraphPtr selectedGraph(const AppState& state) {
    const GraphList::Entry* entry = selectedEntry(state);
    if (entry == nullptr) throw base::Failure(base::FailureCode::BadInput, "No graph is selected in the list.");
    return entry->graph;
}

void deleteSelectedGraph(AppState& state) {
    const GraphPtr graph = selectedGraph(state);
    const auto& all = state.AllGraphs.Graphs;
    DeleteGraph(state, static_cast<int>(std::ranges::find(all, graph) - all.begin()) + 1);
}

void showAddedGraph(AppState& state) {
    const GraphPtr graph = state.AllGraphs.Graphs.back();
    AddedGraph added(state, graph);
    const Angles angles = anglesFor(graph->GraphType, state.scene.SceneMode);
    state.ShownGraphs.setAngles(angles.roll, angles.pitch, angles.yaw);
    added.list(true);
    added.keep();
}

std::string copiedGraph(const AppState& state, const graphs::Cls9& graph) {
    return std::to_string(state.scene.SceneMode) + ' ' + graphRecord(graph, state.gridding);
}

bool pasteGraph(AppState& state, std::string_view text) {
    requireSlots(text);
    TokenReader in(text, copyBufferSlots);
    if (!goesWith(state.scene.SceneMode, in.token())) return false;
    auto graph = std::make_shared<graphs::Cls9>();
    data::GriddingChoice gridding = state.gridding;
    readGraphRecord(in, newestGeneration, *graph, gridding);
    if (!isKnownKind(*graph)) throw base::Failure(base::FailureCode::BadInput, "The clipboard holds no graph.");
    takeVolumeSteps(*graph, state.TheData);
    graph->ID = state.LastGraphId + 1;

    AddedGraph added(state, graph);
    state.AllGraphs.Graphs.push_back(graph);
    const GraphList::Entry* selected = selectedEntry(state);
    if (graph->GraphType != type::isoSurface) added.list(selected != nullptr && selected->ticked);
    added.keep();
    state.LastGraphId = graph->ID;
    state.gridding = gridding;
    return true;
}

void takeVolumeSteps(graphs::Cls9& graph, const data::ClsData& data) {
    if (isVolumePlot(graph)) graph.StepH = data.StepsZ - 1;
}

}  // namespace tessaplot::core

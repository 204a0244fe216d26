#include <algorithm>
#include <future>
#include <memory>
#include <string>
#include <system_error>
#include <utility>

#include "core/document.h"
#include "core/graph_commands.h"
#include "core/refresh.h"
#include "core/triangulation.h"

namespace tessaplot::core {

namespace {

void takeScene(AppState& state, int sceneMode) {
    state.scene.SceneMode = sceneMode;
    if (sceneMode == scene::mode2D)
        state.ShownGraphs.setAngles(0, 0, 0);
    else
        state.ShownGraphs.setAngles(0, -30, 45);
    state.UseQuat = false;
}

void takeScaling(AppState& state, const data::Scaling& read) {
    state.scaling.ScaleMode = read.ScaleMode;
    state.scaling.ScaleRatioX = read.ScaleRatioX;
    state.scaling.ScaleRatioY = read.ScaleRatioY;
    state.scaling.ScaleRatioZ = read.ScaleRatioZ;
    state.scaling.ZoomZ = read.ZoomZ;
}

/// Ids of later graphs count on from those of the document, even if these stand at the end of the numbers.
constexpr int largestStartOfIds = 2'000'000'000;

void takeGraphs(AppState& state, std::vector<graphs::Cls9> graphs) {
    for (graphs::Cls9& read : graphs) {
        if (read.ID > state.LastGraphId) state.LastGraphId = std::min(read.ID, largestStartOfIds) + 1;
        auto graph = std::make_shared<graphs::Cls9>(std::move(read));
        state.AllGraphs.Graphs.push_back(graph);
        state.List1.add(graph, state.scene.SceneMode);
    }
}

/// Triangles are made for the graph read last alone; one that stands before others shows none until it is recomputed.
void triangulateForLastGraph(AppState& state) {
    const auto& graphs = state.AllGraphs.Graphs;
    if (!graphs.empty() && graphs.back()->GraphType == graphs::graph_type::delaunay) triangulatePoints(state);
}

/// Ticks every entry. The view is fitted to the first graph alone, as its tick would do; the scene is compiled once.
void tickAll(AppState& state) {
    for (GraphList::Entry& entry : state.List1.entries) {
        entry.ticked = true;
        state.ShownGraphs.Graphs.push_back(entry.graph);
        if (std::exchange(state.FitOnRefresh, false)) {
            centreScene(state);
            fitCamera(state);
        }
    }
    RebuildScene(state);
    state.desktop.displayPicture();
}

void untickAll(AppState& state) {
    for (GraphList::Entry& entry : state.List1.entries)
        entry.ticked = false;
    state.ShownGraphs.Graphs.clear();
    RebuildScene(state);
    state.desktop.displayPicture();
}

void showAllGraphs(AppState& state) {
    // Should the panel fail, no graph of this document may be drawn from the data of the one before.
    state.TheData = {};
    state.TheData.GetData(state.panel, state.scaling, state.gridding, state.desktop);
    for (const GraphPtr& graph : state.AllGraphs.Graphs)
        takeVolumeSteps(*graph, state.TheData);
    state.FitOnRefresh = true;
    triangulateForLastGraph(state);
    try {
        tickAll(state);
    } catch (...) {
        untickAll(state);
        throw;
    }
}

/// A document with whether its file was empty.
struct ReadDocument {
    bool empty = false;
    std::optional<Document> document;
};

ReadDocument readWhole(const std::filesystem::path& path) {
    const std::string text = readDocumentFile(path);
    if (text.empty()) return {true, std::nullopt};
    return {false, readDocument(text)};
}

}  // namespace

/// A document that is being read.
struct DocumentAhead {
    std::filesystem::path path;
    std::future<ReadDocument> reading;
};

std::shared_ptr<DocumentAhead> readAhead(const std::filesystem::path& path) {
    if (path.empty()) return nullptr;
    auto ahead = std::make_shared<DocumentAhead>();
    ahead->path = path;
    try {
        ahead->reading = std::async(std::launch::async, readWhole, path);
    } catch (const std::system_error&) {
        return nullptr;  // There is no further thread: LoadDocument reads it.
    }
    return ahead;
}

LoadResult LoadDocument(AppState& state, const std::filesystem::path& path) {
    if (path.empty()) return LoadResult::NoPath;
    const auto ahead = std::exchange(state.documentAhead, nullptr);
    auto [empty, document] = ahead && ahead->path == path ? ahead->reading.get() : readWhole(path);
    if (empty) return LoadResult::EmptyFile;
    DeleteAllGraphs(state);
    state.TriangleList.clear();
    state.documentFolder = path.parent_path();
    state.LastGraphId = 0;
    if (!document) return LoadResult::UnknownTag;

    takeScene(state, document->SceneMode);
    state.panel = std::move(document->panel);
    document->axis.AxisStyle = state.TheAxis.AxisStyle;
    state.TheAxis = std::move(document->axis);
    if (document->scaling) takeScaling(state, *document->scaling);
    if (document->gridding) state.gridding = *document->gridding;
    takeGraphs(state, std::move(document->graphs));
    showAllGraphs(state);
    return LoadResult::Loaded;
}

}  // namespace tessaplot::core

#include "ui/graph_addition.h"

#include <string>
#include <utility>
#include <vector>

#include "base/failure.h"
#include "core/triangulation.h"

namespace tessaplot::ui {

namespace {

using base::Failure;
using base::FailureCode;
using graphs::Cls9;

constexpr int fewestNodes = 2;

void requireKind(DataNeed need, data::DataKind kind) {
    const bool volume = data::isVolume(kind);
    if (!fits(need, kind))
        throw Failure(FailureCode::BadInput, volume
                                                 ? "This graph shows a surface, but the data are those of a volume."
                                                 : "This graph shows a volume, but the data are those of a surface.");
    if (need == DataNeed::ScatteredSurface && !data::isIrregular(kind))
        throw Failure(FailureCode::BadInput, "Triangles are made of irregular data, but the data are regular.");
}

void requireGrid(const data::ClsData& data) {
    const bool volume = data.DataDim == 2;
    if (data.StepsX < fewestNodes || data.StepsY < fewestNodes || (volume && data.StepsZ < fewestNodes))
        throw Failure(FailureCode::BadInput, "The data grid needs at least two rows along each axis.");
}

/// The panel with its numbers cleaned, and what was read from it.
struct PanelReading {
    data::DataPanel panel;
    data::GriddingChoice gridding;
    data::Scaling scaling;
    data::ClsData data;
    std::vector<geometry::Triangle> triangles;
};

/// Puts what was read from the panel into the document and takes it out again unless it is kept.
class Replacement {
 public:
    Replacement(core::AppState& state, PanelReading& reading) : state_(state), reading_(reading) {
        reading_.triangles = state_.TriangleList;
        swap();
    }
    ~Replacement() {
        if (!kept_) swap();
    }
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;
    void keep() { kept_ = true; }

 private:
    void swap() {
        std::swap(state_.panel, reading_.panel);
        std::swap(state_.gridding, reading_.gridding);
        std::swap(state_.scaling, reading_.scaling);
        std::swap(state_.TheData, reading_.data);
        std::swap(state_.TriangleList, reading_.triangles);
    }

    core::AppState& state_;
    PanelReading& reading_;
    bool kept_ = false;
};

PanelReading readPanel(const core::AppState& state, DataNeed need, const data::GriddingChoice& gridding,
                       const std::function<bool()>& isWanted) {
    requireKind(need, state.panel.kind());
    PanelReading reading{state.panel, gridding, state.scaling, {}, {}};
    std::string message;
    if (!reading.panel.CheckData(message)) {
        const char* reason = need == DataNeed::Scales ? "A point is placed by the scales of the data. " : "";
        throw Failure(FailureCode::BadInput, reason + message);
    }
    platform::Desktop patient = state.desktop;
    patient.reportProgress = [&](double share) {
        return (!state.desktop.reportProgress || state.desktop.reportProgress(share)) && isWanted();
    };
    reading.data.GetData(reading.panel, reading.scaling, reading.gridding, patient);
    if (!isWanted()) throw Failure(FailureCode::Cancelled, "The dialog was closed.");
    requireGrid(reading.data);
    return reading;
}

/// A point is placed by the scales alone: once there are some, the data stay as they are.
bool keepsData(DataNeed need, const data::Scaling& scaling) {
    return need == DataNeed::Scales && scaling.ScaleX != 0 && scaling.ScaleY != 0 && scaling.ScaleZ != 0;
}

void takeSteps(Cls9& graph, const data::ClsData& data) {
    graph.StepU = data.StepsX - 1;
    graph.StepV = data.StepsY - 1;
    graph.StepH = data.DataDim == 2 ? data.StepsZ - 1 : 0;
}

/// A graph that the data cannot show is found before it is part of the document.
void drawOnTrial(Cls9 graph, const core::AppState& state) {
    gl::DisplayList list;
    graph.Draw(list, state.graphContext());
}

std::shared_ptr<Cls9> enlist(core::AppState& state, Cls9 graph) {
    graph.ID = ++state.LastGraphId;
    graph.NameS = graphs::listLabel(graph, state.scene.SceneMode);
    auto made = std::make_shared<Cls9>(std::move(graph));
    state.AllGraphs.Graphs.push_back(made);
    return made;
}

}  // namespace

bool fits(DataNeed need, data::DataKind kind) {
    return need == DataNeed::Scales || (need == DataNeed::Volume) == data::isVolume(kind);
}

std::shared_ptr<Cls9> addGraph(core::AppState& state, Cls9 graph, DataNeed need, const data::GriddingChoice& gridding,
                               const std::function<bool()>& isWanted) {
    if (keepsData(need, state.scaling)) {
        drawOnTrial(graph, state);
    } else {
        PanelReading reading = readPanel(state, need, gridding, isWanted);
        Replacement replacement(state, reading);
        if (need == DataNeed::ScatteredSurface) core::triangulatePoints(state);
        takeSteps(graph, state.TheData);
        drawOnTrial(graph, state);
        replacement.keep();
    }
    return enlist(state, std::move(graph));
}

}  // namespace tessaplot::ui

#include <string>

#include "base/failure.h"
#include "core/example_state.h"
#include "core/graph_commands.h"
#include "core/refresh.h"
#include "fuzz/property.h"
#include "fuzz/targets.h"

namespace tessaplot::fuzz {

namespace {

/// An open document that a graph with this mode may be pasted into, with its first graph ticked and selected.
void open(core::AppState& state, char mode) {
    state.scene.SceneMode = mode == '7' ? scene::mode2D : mode == '3' ? scene::mode3D : scene::mode4D;
    const bool volume = state.scene.SceneMode == scene::mode4D;
    core::fillPanel(state.panel, volume ? data::DataKind::RegularVolume : data::DataKind::RegularSurface);
    state.panel.setCell(4, 1, "5");
    state.TheData.GetData(state.panel, state.scaling, state.gridding, state.desktop);
    core::addGraph(state, volume ? graphs::graph_type::scatter4D : graphs::graph_type::gridModel);
    core::setTick(state, 0, true);
    state.List1.selected = 0;
}

bool pastes(core::AppState& state, std::string_view text) {
    const std::size_t before = state.AllGraphs.Graphs.size();
    try {
        return core::pasteGraph(state, text);
    } catch (const base::Failure&) {
        require(state.AllGraphs.Graphs.size() == before, "what cannot be pasted leaves the document");
        return false;
    }
}

}  // namespace

void paste_graph(std::string_view bytes) {
    core::AppState state;
    open(state, bytes.empty() ? '4' : bytes.front());
    if (!pastes(state, bytes)) return;
    graphs::Cls9& pasted = *state.AllGraphs.Graphs.back();
    static_cast<void>(core::recordDisplay(state));
    const std::string copied = core::copiedGraph(state, pasted);
    // The first drawing may have changed steps of 0, with which the graph is another one.
    if (!pastes(state, copied)) return;
    graphs::Cls9& second = *state.AllGraphs.Graphs.back();
    second.ID = pasted.ID;
    require(core::copiedGraph(state, second) == copied, "a copy of a copy is the copy");
}

}  // namespace tessaplot::fuzz

#pragma once

#include <string>
#include <string_view>

#include "core/app_state.h"

namespace tessaplot::core {

/// Tokens that the text of the copy buffer can have.
inline constexpr int copyBufferSlots = 20000;

/// The graph selected in the list. Throws BadInput if none is.
GraphPtr selectedGraph(const AppState& state);

/// Deletes the graph selected in the list. Throws BadInput if none is.
void deleteSelectedGraph(AppState& state);

/// Hangs the graph that was added to `AllGraphs` last into the list and shows it; the scene turns as its kind asks
/// for. A scene that cannot be built takes the graph out again and throws.
void showAddedGraph(AppState& state);

/// A graph as the clipboard bears it: the mode of the scene, a blank, the record.
std::string copiedGraph(const AppState& state, const graphs::Cls9& graph);

/// Adds the graph that a text of the clipboard bears, under the next id and ticked if the selected entry is. An
/// iso-surface gets no list entry. False, with nothing changed, for a graph of a mode that does not go with the
/// scene's. Throws Failure, with nothing changed, for a text that is too long or no graph.
bool pasteGraph(AppState& state, std::string_view text);

/// Gives a plot of a volume its third step count, which no record holds, from the data set.
void takeVolumeSteps(graphs::Cls9& graph, const data::ClsData& data);

}  // namespace tessaplot::core

#pragma once

#include <string>
#include <vector>

#include "core/group.h"

namespace tessaplot::core {

struct AppState;

/// The check-box list of graphs: a tick means that the graph is shown.
class GraphList {
 public:
    struct Entry {
        GraphPtr graph;
        std::string label;
        bool ticked = false;
    };

    std::vector<Entry> entries;
    int selected = -1;  ///< 0-based, -1 for none.

    /// Adds an entry, not ticked, for a graph whose kind has a label.
    void add(const GraphPtr& graph, int sceneMode);
    void remove(const graphs::Cls9& graph);
    void clear();
};

/// Brings `ShownGraphs` in line with the ticks (newly ticked graphs at its end), rebuilds the scene and displays it, or
/// fits the view if that was asked for.
void RefreshShownGraphs(AppState& state);

/// Ticks or unticks an entry and refreshes. A scene that cannot be built leaves the entry as it was and throws.
void setTick(AppState& state, int entry, bool ticked);

bool GraphIsShown(const AppState& state, const graphs::Cls9& graph);

/// Deletes graph `index`, 1-based into `AllGraphs`; nothing if there are none. Throws SubscriptOutOfRange otherwise.
void DeleteGraph(AppState& state, int index);
void DeleteAllGraphs(AppState& state);

}  // namespace tessaplot::core

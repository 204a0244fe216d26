#pragma once

#include <memory>

#include "core/app_state.h"
#include "ui/form.h"

namespace tessaplot::ui {

/// The property dialog of a kind of graph (6, 7, 13 to 16, 18, 19, 24, 41 to 44), filled with its defaults. Its OK
/// parses the panel and adds the graph to `AllGraphs` with the next id. Throws SubscriptOutOfRange for another kind.
std::unique_ptr<Form> makeGraphForm(core::AppState& state, int graphType);

}  // namespace tessaplot::ui

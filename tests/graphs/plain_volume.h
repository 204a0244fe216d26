#pragma once

#include "gl/display_list.h"
#include "graphs/graph.h"

namespace tessaplot::graphs {

/// What follows the material when a plot of a volume is drawn, in plain loops. The ranges of the graph must be found.
void plainScatter(gl::DisplayList& list, const Cls9& graph, const GraphContext& context);
void plainVectors(gl::DisplayList& list, const Cls9& graph, const GraphContext& context);
/// Every slice must lie within the grid.
void plainSlices(gl::DisplayList& list, Cls9& graph, const GraphContext& context);

}  // namespace tessaplot::graphs

#pragma once

#include "gl/display_list.h"
#include "graphs/graph.h"

namespace tessaplot::graphs {

/// What follows the material when a surface or a graph of triangles is drawn, in plain loops over plain tables. The
/// ranges of the graph must be found. Textures are never there.
void plainSurface(gl::DisplayList& list, Cls9& graph, const GraphContext& context);
void plainTriangles(gl::DisplayList& list, Cls9& graph, const GraphContext& context);

}  // namespace tessaplot::graphs

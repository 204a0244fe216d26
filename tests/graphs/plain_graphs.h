#pragma once

#include "gl/display_list.h"
#include "graphs/graph.h"

namespace tessaplot::graphs {

/// What follows the material when a graph of a kind is drawn, in plain loops over plain tables. The ranges of the graph
/// must be found. Textures are never there, and every slice lies within the grid.
using PlainGraph = void(gl::DisplayList& list, Cls9& graph, const GraphContext& context);

PlainGraph plainSurface, plainTriangles, plainColorMap, plainVectors, plainContourPlot;
PlainGraph plainScatter4D, plainVectors4D, plainSlices4D;

}  // namespace tessaplot::graphs

#pragma once

#include "gl/display_list.h"
#include "graphs/graph.h"
#include "graphs/grid_table.h"

namespace tessaplot::graphs {

/// A grid node in scene axes: x holds data Y, y holds data Z, z holds data X.
struct Node {
    double x = 0;
    double y = 0;
    double z = 0;
};

/// Throws SubscriptOutOfRange unless the data set's surface grid holds nodes (0, 0) to (lastI, lastJ).
void requireGrid(const data::ClsData& data, int lastI, int lastJ);

/// The nodes of one drawing, i from 0 to StepU, j from 0 to StepV.
class NodeTable : public GridTable<Node> {
 public:
    /// Takes every node from the grid of the data set. Throws SubscriptOutOfRange, before anything is allocated, if
    /// that is smaller.
    NodeTable(const data::ClsData& data, int lastI, int lastJ);
};

void emitPoint(gl::DisplayList& list, const Cls9& graph, const GraphContext& context);
/// A marker at each node.
void emitVertexModel(gl::DisplayList& list, const Cls9& graph, const GraphContext& context, const NodeTable& nodes);
/// A line from each node to its neighbours along both axes, each cell for itself.
void emitGridModel(gl::DisplayList& list, const Cls9& graph, const GraphContext& context, const NodeTable& nodes);
/// A filled mesh of the nodes with all that belongs to it: texture, transparency, marks of scattered points, overlays.
void emitSurface(gl::DisplayList& list, Cls9& graph, const GraphContext& context, const NodeTable& nodes);
/// The triangles of the last triangulation, filled and as edges.
void emitTriangles(gl::DisplayList& list, Cls9& graph, const GraphContext& context);
/// The polyline through row 0 of the graph's own table, with a ring at each node.
void emitTable(gl::DisplayList& list, Cls9& graph, const GraphContext& context);

/// A cone from the first point to the second, in the graph's `Vect4DColor`. A cone across scene z is not turned: it
/// points along z.
void DrawArrow(gl::DisplayList& list, const Cls9& graph, const GraphContext& context, const Node& from, const Node& to);

}  // namespace tessaplot::graphs

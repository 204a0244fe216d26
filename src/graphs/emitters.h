#pragma once

#include "geometry/iso_surface.h"
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
    /// Nodes at the origin, as the kinds have that take none from the data.
    NodeTable(int lastI, int lastJ) : GridTable(lastI, lastJ) {}
};

/// The marker of a point, where its data coordinates lie in the scene.
void emitPoint(gl::DisplayList& list, const Cls9& graph, const GraphContext& context);
/// A marker at each node.
void emitVertexModel(gl::DisplayList& list, const Cls9& graph, const GraphContext& context, const NodeTable& nodes);
/// A line from each node to its neighbours along both axes, each cell for itself.
void emitGridModel(gl::DisplayList& list, const Cls9& graph, const GraphContext& context, const NodeTable& nodes);
/// A filled mesh of the nodes with all that belongs to it: texture, transparency, marks of scattered points, overlays.
void emitSurface(gl::DisplayList& list, Cls9& graph, const GraphContext& context, const NodeTable& nodes);
/// The triangles of the last triangulation, filled and as edges.
void emitTriangles(gl::DisplayList& list, Cls9& graph, const GraphContext& context);
/// The cells of the grid, flat at the lowest height, in the colours of their nodes' heights; unlit.
void emitColorMap(gl::DisplayList& list, Cls9& graph, const GraphContext& context, const NodeTable& nodes);
/// The contour lines of the heights in the plane of the lowest.
void emitContourPlot(gl::DisplayList& list, Cls9& graph, const GraphContext& context);
/// The gradient of the heights as arrows in the plane of the lowest; border nodes have none.
void emitVectors(gl::DisplayList& list, const Cls9& graph, const GraphContext& context, const NodeTable& nodes);
/// The contour lines of the fill value on the surface.
void emitContour3D(gl::DisplayList& list, Cls9& graph, const GraphContext& context);
/// A sphere at each node of the volume, as large as its value. Throws SubscriptOutOfRange for more than 101^3 nodes.
void emitScatter4D(gl::DisplayList& list, const Cls9& graph, const GraphContext& context);
/// The gradient of the volume's value as arrows. Throws SubscriptOutOfRange for a volume of one layer and for one of
/// more than 101^3 nodes.
void emitVectors4D(gl::DisplayList& list, const Cls9& graph, const GraphContext& context);
/// The slices across Z, Y and X, filled, with contour lines and with vectors. Throws SubscriptOutOfRange, naming the
/// slice, for one whose limits lie outside the grid.
void emitSlices4D(gl::DisplayList& list, Cls9& graph, const GraphContext& context);
/// The surface on which the volume's value, unscaled, is `IsoSurValue`, in data axes and scene units; without the last
/// layer of nodes along each axis, which stays outside.
geometry::IsoMesh isoSurfaceOf(const Cls9& graph, const GraphContext& context);
/// That surface in the colour map's colour for its value.
void emitIsoSurface(gl::DisplayList& list, Cls9& graph, const GraphContext& context);
/// The polyline through row 0 of the graph's own table, with a ring at each node.
void emitTable(gl::DisplayList& list, Cls9& graph, const GraphContext& context);

/// A cone from the first point to the second, in the graph's `Vect4DColor`.
void DrawArrow(gl::DisplayList& list, const Cls9& graph, const GraphContext& context, const Node& from, const Node& to);

}  // namespace tessaplot::graphs

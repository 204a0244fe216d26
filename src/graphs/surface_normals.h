#pragma once

#include "graphs/emitters.h"
#include "graphs/grid_table.h"

namespace tessaplot::graphs {

/// A direction in scene axes.
struct Direction {
    double x = 0;
    double y = 0;
    double z = 0;
};

/// The way from one node to another.
constexpr Direction directionBetween(const Node& from, const Node& to) {
    return {to.x - from.x, to.y - from.y, to.z - from.z};
}

/// The cross product of `a` and `b` at length 1. A product of length 0 stays so; one that is no finite number is 0.
Direction crossNormal(const Direction& a, const Direction& b);

/// `v` at length 1; a length of 0 stays so.
Direction atUnitLength(const Direction& v);

/// How far two nodes may lie apart along each scene axis to be taken for one place of a surface that closes upon
/// itself.
struct SeamTolerance {
    double x = 0;
    double y = 0;
    double z = 0;
};

/// Eight tenths of a cell of the graph, by the ranges that it found last.
SeamTolerance seamToleranceOf(const Cls9& graph);

/// The normals of a mesh of nodes: one for each cell, square to its diagonals, and one for each node, the mean of those
/// of the cells round it. Where the mesh closes upon itself, the cells on both sides of the seam count as neighbours;
/// if it closes along both axes, each corner node still sums two cells. Nodes without data take part as they stand.
class SurfaceNormals {
 public:
    /// At least one cell along each axis.
    SurfaceNormals(const NodeTable& nodes, int cellsU, int cellsV, const SeamTolerance& tolerance);

    const Direction& ofCell(int i, int j) const { return cells_(i, j); }
    const Direction& ofNode(int i, int j) const { return nodes_(i, j); }

 private:
    void fillCells(const NodeTable& nodes);
    void sumCorners();
    void sumEdges();
    void sumSeamAlongV();
    void sumSeamAlongU();
    void sumInterior();

    int cellsU_;
    int cellsV_;
    GridTable<Direction> cells_;
    GridTable<Direction> nodes_;
};

}  // namespace tessaplot::graphs

#pragma once

#include <vector>

#include "gl/display_list.h"
#include "graphs/graph.h"

namespace tessaplot::graphs {

/// A grid node in scene axes: x holds data Y, y holds data Z, z holds data X.
struct Node {
    double x = 0;
    double y = 0;
    double z = 0;
};

/// The nodes of one drawing, i from 0 to StepU, j from 0 to StepV.
class NodeTable {
 public:
    NodeTable(int lastI, int lastJ);
    Node& operator()(int i, int j) { return nodes_[index(i, j)]; }
    const Node& operator()(int i, int j) const { return nodes_[index(i, j)]; }
    /// Takes every node from the grid of the data set. Throws SubscriptOutOfRange if that is smaller.
    void fillFrom(const data::ClsData& data);

 private:
    std::size_t index(int i, int j) const {
        return static_cast<std::size_t>(i) * static_cast<std::size_t>(lastJ_ + 1) + static_cast<std::size_t>(j);
    }
    int lastI_;
    int lastJ_;
    std::vector<Node> nodes_;
};

void emitPoint(gl::DisplayList& list, const Cls9& graph, const GraphContext& context);
void emitVertexModel(gl::DisplayList& list, const Cls9& graph, const GraphContext& context, const NodeTable& nodes);
void emitGridModel(gl::DisplayList& list, const Cls9& graph, const GraphContext& context, const NodeTable& nodes);
void emitTable(gl::DisplayList& list, Cls9& graph, const GraphContext& context);

/// A cone from the first point to the second, in scene order (data Y, Z, X), in the graph's `Vect4DColor`.
void DrawArrow(gl::DisplayList& list, const Cls9& graph, const GraphContext& context, const Node& from, const Node& to);

}  // namespace tessaplot::graphs

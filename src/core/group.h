#pragma once

#include <memory>
#include <string>
#include <vector>

#include "gl/display_list.h"
#include "graphs/graph.h"
#include "scene/axis.h"
#include "scene/box.h"

namespace tessaplot::core {

using GraphPtr = std::shared_ptr<graphs::Cls9>;

/// A graph as it was recorded.
struct DrawnGraph {
    GraphPtr graph;
    gl::DisplayListPtr list;
    gl::DisplayListPtr legend;
    std::string misfit;  ///< Why the graph does not fit the data set, so that its lists are empty; empty if it fits.
};

/// The group that holds graphs in order, with the rotation of the scene.
class Cls8 {
 public:
    double ScaleZ = 1, ScaleY = 1, ScaleX = 1;     ///< Stored only.
    double TransZ = 0, TransY = 0, TransX = 0;     ///< Stored only.
    double RotYaw = 0, RotPitch = 0, RotRoll = 0;  ///< Degrees.
    bool DrawAxis = true;                          ///< Stored only; the frame drawn is the state's own.
    std::shared_ptr<scene::Cls3> Axis = std::make_shared<scene::Cls3>();
    std::vector<GraphPtr> Graphs;

    bool empty() const { return Graphs.empty(); }
    bool contains(const graphs::Cls9& graph) const;
    /// Removes the graph if it is in the group.
    void remove(const graphs::Cls9& graph);
    void setAngles(double roll, double pitch, double yaw);

    /// The box of all graphs that fit the data set, with a margin of 0.04 scene units. Throws Overflow if a limit is
    /// not a finite number.
    scene::Cls1 GetBox(const graphs::GraphContext& context) const;
    /// Records the graphs in order, each with its legend into lists of their own.
    std::vector<DrawnGraph> Draw(const graphs::GraphContext& context) const;
};

}  // namespace tessaplot::core

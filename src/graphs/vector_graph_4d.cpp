#include "base/failure.h"
#include "graphs/color_fill.h"
#include "graphs/irregular_marks.h"
#include "graphs/make_room.h"
#include "graphs/smooth_lines.h"
#include "graphs/volume_grid.h"

namespace tessaplot::graphs {

namespace {

/// The differences of neighbours that a gradient is made of.
enum class Difference { Mean, Forward, Backward };

/// A block of nodes, `first` to `last` along each axis, that take their gradients alike.
struct Block {
    VolumePlace first;
    VolumePlace last;
    Difference difference;
};

/// The inner nodes.
Block innerBlock(const VolumePlace& last) {
    return {{1, 1, 1}, {last[0] - 1, last[1] - 1, last[2] - 1}, Difference::Mean};
}

/// The face at index 0 along an axis, less its far edges.
Block nearFace(const VolumePlace& last, VolumeAxis axis) {
    Block face = innerBlock(last);
    face.first = {0, 0, 0};
    along(face.last, axis) = 0;
    face.difference = Difference::Forward;
    return face;
}

/// The face at the last index along an axis, less all its edges.
Block farFace(const VolumePlace& last, VolumeAxis axis) {
    Block face = innerBlock(last);
    along(face.first, axis) = along(face.last, axis) = along(last, axis);
    face.difference = Difference::Backward;
    return face;
}

/// Emits the gradient of the value at each node of a block as an arrow.
class GradientArrows {
 public:
    GradientArrows(gl::DisplayList& list, const Cls9& graph, const GraphContext& context, const VolumeGrid& volume)
        : list_(list), graph_(graph), context_(context), volume_(volume) {}

    void emit(const Block& block) {
        for (int i = block.first[0]; i <= block.last[0]; ++i)
            for (int j = block.first[1]; j <= block.last[1]; ++j)
                for (int k = block.first[2]; k <= block.last[2]; ++k)
                    emitAt({i, j, k}, block.difference);
    }

 private:
    void emitAt(const VolumePlace& place, Difference difference) {
        const VolumeNode node = volume_(place);
        if (isMissing(node)) return;
        Node tip = node.at;
        for (const VolumeAxis axis : {VolumeAxis::X, VolumeAxis::Y, VolumeAxis::Z}) {
            double change = 0;
            if (!changeAlong(axis, place, node.value, difference, change)) return;
            along(tip, axis) += change;
        }
        DrawArrow(list_, graph_, context_, node.at, tip);
    }

    /// How much the value changes from node to node; false if a neighbour has none.
    bool changeAlong(VolumeAxis axis, const VolumePlace& place, double here, Difference difference,
                     double& change) const {
        const double before = difference == Difference::Forward ? here : neighbour(place, axis, -1);
        const double after = difference == Difference::Backward ? here : neighbour(place, axis, 1);
        if (isMissing(before) || isMissing(after)) return false;
        const double sum = (here - before) + (after - here);
        change = difference == Difference::Mean ? sum / 2 : sum;
        return true;
    }

    double neighbour(VolumePlace place, VolumeAxis axis, int step) const {
        along(place, axis) += step;
        const VolumeNode node = volume_(place);
        return isMissing(node) ? data::missingValue : node.value;
    }

    gl::DisplayList& list_;
    const Cls9& graph_;
    const GraphContext& context_;
    const VolumeGrid& volume_;
};

}  // namespace

void emitVectors4D(gl::DisplayList& list, const Cls9& graph, const GraphContext& context) {
    if (graph.StepH < 1)
        throw base::Failure(base::FailureCode::SubscriptOutOfRange,
                            "A gradient needs two nodes along each axis, and there is one along Z.");
    const VolumeGrid volume(context.data, graph);
    volume.requireMarkable();
    makeRoom(list, 9 * volume.nodeCount(), 15 * volume.nodeCount());
    beginSmoothLines(list, graph);
    emitFloatColor(list, ColorToRGB(graph.VectorColor));
    GradientArrows arrows(list, graph, context, volume);
    arrows.emit(innerBlock(volume.last()));
    for (const VolumeAxis axis : {VolumeAxis::Z, VolumeAxis::Y, VolumeAxis::X}) {
        arrows.emit(nearFace(volume.last(), axis));
        arrows.emit(farFace(volume.last(), axis));
    }
    emitIrregularMarks(list, graph, context);
    endSmoothLines(list);
}

}  // namespace tessaplot::graphs

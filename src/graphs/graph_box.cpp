#include <cstddef>
#include <span>

#include "data/range.h"
#include "graphs/graph.h"
#include "graphs/over_scale.h"
#include "graphs/surface_overlays.h"

namespace tessaplot::graphs {

namespace {

constexpr double emptyMaximum = -99999990000.0;
constexpr double emptyMinimum = 99999990000.0;

/// Two members of a graph that hold a minimum and a maximum.
struct Range {
    double& minimum;
    double& maximum;

    void clear() {
        minimum = emptyMinimum;
        maximum = emptyMaximum;
    }
    void widen(double value) { data::widen(value, minimum, maximum); }
};

/// Widens the range by elements 0 to the last index of each dimension; no bounds, no elements.
void widenOver(Range range, const data::Array& array, int lastI, int lastJ = 0, int lastK = 0) {
    if (!array.allocated() || lastI < 0 || lastJ < 0 || lastK < 0) return;
    static_cast<void>(array(lastI, lastJ, lastK));  // fails for bounds that are too small
    double minimum = range.minimum;
    double maximum = range.maximum;
    Range widest{minimum, maximum};
    const std::span<const double> values = array.values();
    for (std::size_t k = 0; k <= static_cast<std::size_t>(lastK); ++k)
        for (std::size_t j = 0; j <= static_cast<std::size_t>(lastJ); ++j)
            for (const double value :
                 values.subspan(k * array.strideK() + j * array.strideJ(), static_cast<std::size_t>(lastI) + 1))
                widest.widen(value);
    range.minimum = minimum;
    range.maximum = maximum;
}

/// Widens the range by elements (0, 1) to (0, lastJ).
void widenOverFirstColumn(Range range, const data::Array& array, int lastJ) {
    if (!array.allocated()) return;
    for (int j = 1; j <= lastJ; ++j)
        range.widen(array(0, j));
}

void boxSurface(Cls9& graph, const data::ClsData& data) {
    widenOver({graph.MinY, graph.MaxY}, data.Reg3DY, graph.StepU, graph.StepV);
    widenOver({graph.MinZ, graph.MaxZ}, data.Reg3DZ, graph.StepU, graph.StepV);
    widenOver({graph.MinX, graph.MaxX}, data.Reg3DX, graph.StepU, graph.StepV);
    widenOver({graph.MinC, graph.MaxC}, data.Reg3DC, graph.StepU, graph.StepV);
    // The box must hold the overlays too.
    if (hasOverlays(graph)) graph.MinZ -= overlayDepth;
}

void boxPoints(Cls9& graph, const data::ClsData& data) {
    widenOver({graph.MinY, graph.MaxY}, data.Irreg3DY, data.Points - 1);
    widenOver({graph.MinZ, graph.MaxZ}, data.Irreg3DZ, data.Points - 1);
    widenOver({graph.MinX, graph.MaxX}, data.Irreg3DX, data.Points - 1);
}

void boxPointsAndColumn(Cls9& graph, const data::ClsData& data) {
    boxPoints(graph, data);
    widenOverFirstColumn({graph.MinY, graph.MaxY}, data.Reg3DY, graph.StepU - 1);
    widenOverFirstColumn({graph.MinZ, graph.MaxZ}, data.Reg3DZ, graph.StepU - 1);
    widenOverFirstColumn({graph.MinX, graph.MaxX}, data.Reg3DX, graph.StepU - 1);
}

void boxTriangles(Cls9& graph, const data::ClsData& data) {
    boxPoints(graph, data);
    widenOver({graph.MinC, graph.MaxC}, data.Irreg3DC, data.Points - 1);
}

void boxVolume(Cls9& graph, const data::ClsData& data) {
    widenOver({graph.MinX, graph.MaxX}, data.Reg4DX, graph.StepU, graph.StepV, graph.StepH);
    widenOver({graph.MinY, graph.MaxY}, data.Reg4DY, graph.StepU, graph.StepV, graph.StepH);
    widenOver({graph.MinZ, graph.MaxZ}, data.Reg4DZ, graph.StepU, graph.StepV, graph.StepH);
    widenOver({graph.MInv, graph.MaxV}, data.Reg4DV, graph.StepU, graph.StepV, graph.StepH);
}

/// The range between 0 and the value.
void boxFromOrigin(Range range, double value) {
    range.minimum = value < 0 ? value : 0;
    range.maximum = value < 0 ? 0 : value;
}

/// A point's position in scene units, named after the data axis whose range it gives.
struct PointPosition {
    double y;
    double z;
    double x;
};

PointPosition pointPosition(const Cls9& graph, const GraphContext& context) {
    const data::Scaling& scaling = context.scaling;
    if (context.scene.SceneMode == scene::mode2D)
        return {overScale(graph.PointX, scaling.ScaleX), overScale(graph.PointZ, scaling.ScaleY),
                overScale(graph.PointY, scaling.ScaleY)};
    return {overScale(graph.PointX, scaling.ScaleY), overScale(graph.PointY, scaling.ScaleZ),
            overScale(graph.PointZ, scaling.ScaleX)};
}

void boxPoint(Cls9& graph, const GraphContext& context) {
    const PointPosition position = pointPosition(graph, context);
    if (position.x == 0 && position.y == 0 && position.z == 0) {
        graph.MinX = graph.MinY = graph.MinZ = -1;
        graph.MaxX = graph.MaxY = graph.MaxZ = 1;
        return;
    }
    boxFromOrigin({graph.MinY, graph.MaxY}, position.y);
    boxFromOrigin({graph.MinZ, graph.MaxZ}, position.z);
    boxFromOrigin({graph.MinX, graph.MaxX}, position.x);
}

void clearRanges(Cls9& graph) {
    Range{graph.MinY, graph.MaxY}.clear();
    Range{graph.MinZ, graph.MaxZ}.clear();
    Range{graph.MinX, graph.MaxX}.clear();
    Range{graph.MinC, graph.MaxC}.clear();
    Range{graph.MInv, graph.MaxV}.clear();
}

/// Kinds that no command makes and that are boxed by the scattered points.
bool isBoxedByPoints(int type) {
    return type == 0 || type == graph_type::table || type == 9 || type == 20 || type == 23;
}

void fillRanges(Cls9& graph, const GraphContext& context) {
    const int type = graph.GraphType;
    if (type == graph_type::surface || (type >= graph_type::colorMap && type <= graph_type::gridModel))
        boxSurface(graph, context.data);
    else if (isBoxedByPoints(type))
        boxPointsAndColumn(graph, context.data);
    else if (type == graph_type::delaunay)
        boxTriangles(graph, context.data);
    else if (type >= graph_type::scatter4D && type <= graph_type::isoSurface)
        boxVolume(graph, context.data);
    else if (type == graph_type::point)
        boxPoint(graph, context);
}

}  // namespace

scene::Cls1 Cls9::GetBox(const GraphContext& context) {
    clearRanges(*this);
    fillRanges(*this, context);
    scene::Cls1 box;
    box.MaxX = MaxY;
    box.MinX = MinY;
    box.MaxY = MaxZ;
    box.MinY = MinZ;
    box.MaxZ = MaxX;
    box.MinZ = MinX;
    return box;
}

}  // namespace tessaplot::graphs

#include "graphs/surface_overlays.h"

#include "graphs/contour_lines.h"
#include "graphs/gradient_arrows.h"
#include "graphs/make_room.h"
#include "graphs/mesh_cell.h"

namespace tessaplot::graphs {

namespace {

/// The height at which the vertices of overlays stand, before the scene is centred.
double overlayHeight(const Cls9& graph) {
    return graph.MinZ - overlayDepth;
}

/// Emits the cells of the flat colour map.
class ColorPlane {
 public:
    ColorPlane(gl::DisplayList& list, const Cls9& graph, const GraphContext& context, const NodeTable& nodes,
               const SurfaceNormals& normals, SurfaceFill& fill)
        : list_(list), graph_(graph), context_(context), nodes_(nodes), normals_(normals), fill_(fill) {}

    void emitCell(int i, int j) {
        const auto corners = cornersOf(i, j);
        std::array<Rgb, 4> colors;
        std::ranges::transform(corners, colors.begin(), [this](const Place& at) {
            return fill_.overlayColor(nodes_(at.i, at.j), context_.data.Reg3DC(at.i, at.j));
        });
        if (isHole(nodes_, corners)) return;
        list_.glBegin(GL_QUADS);
        for (std::size_t k = 0; k < corners.size(); ++k)
            emitCorner(corners[k], colors[k]);
        list_.glEnd();
    }

 private:
    void emitCorner(const Place& at, const Rgb& color) {
        const Direction& normal = normals_.ofNode(at.i, at.j);
        list_.glNormal3d(normal.x, normal.y, normal.z);
        emitColor(list_, color);
        const Node& node = nodes_(at.i, at.j);
        emitUpright(list_, context_.scene, node.x, overlayHeight(graph_), node.z);
    }

    gl::DisplayList& list_;
    const Cls9& graph_;
    const GraphContext& context_;
    const NodeTable& nodes_;
    const SurfaceNormals& normals_;
    SurfaceFill& fill_;
};

}  // namespace

void emitColorPlane(gl::DisplayList& list, const Cls9& graph, const GraphContext& context, const NodeTable& nodes,
                    const SurfaceNormals& normals, SurfaceFill& fill) {
    makeRoom(list, 14 * cellCount(graph), 37 * cellCount(graph));
    ColorPlane plane(list, graph, context, nodes, normals, fill);
    for (int i = 0; i < graph.StepU; ++i)
        for (int j = 0; j < graph.StepV; ++j)
            plane.emitCell(i, j);
}

void emitValueContours(gl::DisplayList& list, Cls9& graph, const GraphContext& context) {
    const auto valueAt = [&](int i, int j) { return context.data.Reg3DC(i, j); };
    const ContourStyle black{graph.ContourLevel, fill_style::single, 0, 0, graph.LineWidth};
    emitContourLines(list, graph, context, surfaceGrid(graph, context, valueAt), overlayHeight(graph), black,
                     ContourPass::AcrossZ);
}

void emitValueArrows(gl::DisplayList& list, const Cls9& graph, const GraphContext& context, const NodeTable& nodes) {
    const auto valueAt = [&](int i, int j) { return context.data.Reg3DC(i, j); };
    const auto vertex = [&](const PlanePoint& at, double height) {
        emitUpright(list, context.scene, at.y, height, at.x);
    };
    const Rgb black;
    emitGradientArrows(list, graph, nodes, black, valueAt, {overlayHeight(graph), overlayHeight(graph)}, vertex);
}

}  // namespace tessaplot::graphs

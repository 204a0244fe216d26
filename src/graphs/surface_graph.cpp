#include "graphs/make_room.h"
#include "graphs/mesh_cell.h"
#include "graphs/surface_fill.h"
#include "graphs/surface_normals.h"
#include "graphs/surface_overlays.h"
#include "graphs/texture.h"

namespace tessaplot::graphs {

namespace {

void emitPolygonMode(gl::DisplayList& list, int show) {
    if (show == shape::points) list.glPolygonMode(GL_FRONT_AND_BACK, GL_POINT);
    if (show == shape::lines) list.glPolygonMode(GL_FRONT_AND_BACK, GL_LINE);
    if (show == shape::filled) list.glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
}

void beginTexture(gl::DisplayList& list, const Cls9& graph, const GraphContext& context) {
    if (!graph.ShowTex) return;
    Cls15 TexImage;
    if (TexImage.LoadGLTextures(list, graph.TexName, context)) list.glEnable(GL_TEXTURE_2D);
}

void beginTransparency(gl::DisplayList& list, const Cls9& graph) {
    if (!graph.ShowTrans) return;
    list.glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    list.glEnable(GL_BLEND);
    list.glDepthMask(false);
}

/// Emits the cells of the mesh, each in a glBegin and glEnd of its own.
class SurfaceCells {
 public:
    SurfaceCells(gl::DisplayList& list, const Cls9& graph, const GraphContext& context, const NodeTable& nodes,
                 const SurfaceNormals& normals, SurfaceFill& fill)
        : list_(list), graph_(graph), context_(context), nodes_(nodes), normals_(normals), fill_(fill) {}

    void emit() {
        for (int i = 0; i < graph_.StepU; ++i)
            for (int j = 0; j < graph_.StepV; ++j)
                emitCell(i, j);
    }

 private:
    using Corners = std::array<Place, 4>;
    using Colors = std::array<Rgb, 4>;

    void emitCell(int i, int j) {
        const Corners corners = cornersOf(i, j);
        // The colours run on over holes too.
        const Colors colors = colorsOf(corners);
        list_.glBegin(GL_QUADS);
        if (!isHole(nodes_, corners)) {
            if (graph_.Smoothness == smoothness::smoothest)
                emitRoundedCorners(corners, colors);
            else if (graph_.Smoothness == smoothness::flat || graph_.Smoothness == smoothness::smooth)
                emitPlaneCorners(normals_.ofCell(i, j), corners, colors);
        }
        list_.glEnd();
    }

    Colors colorsOf(const Corners& corners) {
        Colors colors;
        std::ranges::transform(corners, colors.begin(), [this](const Place& at) {
            return fill_.surfaceColor(nodes_(at.i, at.j), context_.data.Reg3DC(at.i, at.j));
        });
        return colors;
    }

    void emitRoundedCorners(const Corners& corners, const Colors& colors) {
        for (std::size_t k = 0; k < corners.size(); ++k) {
            const Place& at = corners[k];
            list_.glTexCoord2d(textureU(at.i), textureV(at.j));
            emitNormal(normals_.ofNode(at.i, at.j));
            emitColorAndVertex(at, colors[k]);
        }
    }

    void emitPlaneCorners(const Direction& normal, const Corners& corners, const Colors& colors) {
        emitNormal(normal);
        for (std::size_t k = 0; k < corners.size(); ++k) {
            const Place& at = corners[k];
            list_.glTexCoord2f(static_cast<float>(textureU(at.i)), static_cast<float>(textureV(at.j)));
            emitColorAndVertex(at, colors[k]);
        }
    }

    /// The image runs against the grid.
    double textureU(int i) const { return static_cast<double>(graph_.StepU - i) / graph_.StepU; }
    double textureV(int j) const { return static_cast<double>(graph_.StepV - j) / graph_.StepV; }

    void emitNormal(const Direction& normal) { list_.glNormal3d(normal.x, normal.y, normal.z); }

    void emitColorAndVertex(const Place& at, const Rgb& color) {
        emitFill(color);
        const Node& node = nodes_(at.i, at.j);
        emitUpright(list_, context_.scene, node.x, node.y, node.z);
    }

    void emitFill(const Rgb& color) {
        const bool blended = graph_.ShowTex ? graph_.TexMode == texture_mode::withFill : graph_.ShowTrans;
        if (blended)
            list_.glColor4d(color.r, color.g, color.b, graph_.TransAlpha);
        else if (!graph_.ShowTex)
            emitColor(list_, color);
        else if (graph_.TexMode == texture_mode::alone)
            list_.glColor3d(1, 1, 1);
    }

    gl::DisplayList& list_;
    const Cls9& graph_;
    const GraphContext& context_;
    const NodeTable& nodes_;
    const SurfaceNormals& normals_;
    SurfaceFill& fill_;
};

/// Marks the points that the grid was made from.
void emitScatteredPoints(gl::DisplayList& list, const GraphContext& context) {
    const data::ClsData& data = context.data;
    scene::Cls2 marker;
    marker.Color = base::packColor(255, 255, 0);
    marker.size = 3.0;
    for (int p = 0; p < data.Points; ++p) {
        marker.x = data.Irreg3DY(p);
        marker.y = data.Irreg3DZ(p);
        marker.z = data.Irreg3DX(p);
        marker.Draw(list, context.scene);
    }
}

}  // namespace

void emitSurface(gl::DisplayList& list, Cls9& graph, const GraphContext& context, const NodeTable& nodes) {
    makeRoom(list, 18 * cellCount(graph), 49 * cellCount(graph));
    emitPolygonMode(list, graph.Show);
    beginTexture(list, graph, context);
    beginTransparency(list, graph);
    const SurfaceNormals normals(nodes, graph.StepU, graph.StepV, seamToleranceOf(graph));
    SurfaceFill fill(graph);
    emitShadeModel(list, graph.Smoothness);
    SurfaceCells(list, graph, context, nodes, normals, fill).emit();
    if (graph.ShowTex) list.glDisable(GL_TEXTURE_2D);
    if (graph.ShowTrans) list.glDisable(GL_BLEND);

    if (graph.ShowIrregData) emitScatteredPoints(list, context);
    if (graph.ShowColormap) emitColorPlane(list, graph, context, nodes, normals, fill);
    if (graph.ShowTrans) {
        list.glDisable(GL_BLEND);
        list.glDepthMask(true);
    }
    if (graph.ShowContour) emitValueContours(list, graph, context);
    if (graph.ShowVector) emitValueArrows(list, graph, context, nodes);
}

}  // namespace tessaplot::graphs

#include "graphs/color_fill.h"
#include "graphs/make_room.h"
#include "graphs/mesh_cell.h"
#include "graphs/over_scale.h"

namespace tessaplot::graphs {

namespace {

Rgb surfaceColor(Cls9& graph, const data::ClsData& data) {
    Rgb color;
    ValueToRGB(graph, graph.IsoSurValue, data.MInv, nonZeroSpan(data.MaxV - data.MInv), color);
    return color;
}

}  // namespace

geometry::IsoMesh isoSurfaceOf(const Cls9& graph, const GraphContext& context) {
    const data::ClsData& data = context.data;
    if (graph.StepH < 1) return {};
    return geometry::IsoSurface(graph.StepU - 1, graph.StepV - 1, graph.StepH - 1, data.Reg4DX, data.Reg4DY,
                                data.Reg4DZ, data.Reg4DV, overScale(graph.IsoSurValue, context.scaling.ScaleV));
}

void emitIsoSurface(gl::DisplayList& list, Cls9& graph, const GraphContext& context) {
    const geometry::IsoMesh mesh = isoSurfaceOf(graph, context);
    makeRoom(list, 8 * mesh.triangles.size(), 19 * mesh.triangles.size());
    list.glPushMatrix();
    emitColor(list, surfaceColor(graph, context.data));
    for (const auto& triangle : mesh.triangles) {
        list.glBegin(GL_TRIANGLES);
        for (const std::uint32_t corner : triangle) {
            const auto& [normal, position] = mesh.vertices[corner];
            list.glNormal3d(normal.y, normal.z, normal.x);
            emitUpright(list, context.scene, position.y, position.z, position.x);
        }
        list.glEnd();
    }
    list.glPopMatrix();
}

}  // namespace tessaplot::graphs

#include "graphs/irregular_marks.h"

#include "base/failure.h"
#include "graphs/make_room.h"
#include "graphs/over_scale.h"
#include "graphs/volume_grid.h"

namespace tessaplot::graphs {

double overLargestValue(double value, const data::ClsData& data) {
    if (data.MaxV == 0)
        throw base::Failure(base::FailureCode::DivisionByZero,
                            "Values cannot be shown as spheres: the largest one, which they are measured by, is zero.");
    return value / data.MaxV;
}

void emitIrregularMarks(gl::DisplayList& list, const Cls9& graph, const GraphContext& context) {
    if (context.kind != data::DataKind::IrregularVolume || !graph.ShowIrregData) return;
    const data::ClsData& data = context.data;
    const data::Scaling& scaling = context.scaling;
    if (data.Points > 0)
        makeRoom(list, 7 * static_cast<std::size_t>(data.Points), 9 * static_cast<std::size_t>(data.Points));
    scene::Cls2 marker;
    marker.Color = base::packColor(255, 0, 0);
    for (int p = 0; p < data.Points; ++p) {
        const VolumeNode point{{data.Irreg4DY(p), data.Irreg4DZ(p), data.Irreg4DX(p)}, data.Irreg4DV(p)};
        if (isMissing(point)) continue;
        marker.z = overScale(point.at.z, scaling.ScaleX);
        marker.x = overScale(point.at.x, scaling.ScaleY);
        marker.y = overScale(point.at.y, scaling.ScaleZ);
        marker.size = overLargestValue(point.value, data) * 5.0;
        marker.Draw(list, context.scene);
    }
}

}  // namespace tessaplot::graphs

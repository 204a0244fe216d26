#include "scene/axis.h"

#include "scene/axis_parts.h"

namespace tessaplot::scene {

void Cls3::SetDefault() {
    const int style = AxisStyle;
    *this = Cls3{};
    AxisStyle = style;
    Show = true;
}

void Cls3::Draw(gl::DisplayList& list, const SceneState& scene, const AxisScales& scales, int, double minX, double maxX,
                double minY, double maxY, double minZ, double maxZ) const {
    Cls1 box;
    box.MinX = minX;
    box.MaxX = maxX;
    box.MinY = minY;
    box.MaxY = maxY;
    box.MinZ = minZ;
    box.MaxZ = maxZ;
    const AxisDrawing drawing{list, *this, scene, scales, box};
    if (isFlat(scene.SceneMode))
        emitFlatFrame(drawing);
    else if (AxisStyle != 1)
        emitArrows(drawing);
    else
        emitFrame(drawing);
}

}  // namespace tessaplot::scene

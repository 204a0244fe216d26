#pragma once

#include "scene/axis.h"
#include "scene/box.h"
#include "scene/text.h"

namespace tessaplot::scene {

/// What the parts of the axis frame are drawn with. Places are told in the coordinates of the box; the centre of the
/// scene is taken off here.
struct AxisDrawing {
    gl::DisplayList& list;
    const Cls3& axis;
    const SceneState& scene;
    const AxisScales& scales;
    Cls1 box;

    void vertex(double x, double y, double z) const {
        list.glVertex3d(x - scene.SceneCenterX, y - scene.SceneCenterY, z - scene.SceneCenterZ);
    }
    void text(GLuint font, const std::string& text, double x, double y, double z, const TextRotation& rotation,
              base::PackedColor color) const {
        DrawText3D(list, font, text, x - scene.SceneCenterX, y - scene.SceneCenterY, z - scene.SceneCenterZ, rotation,
                   color);
    }
};

/// The width that the frame reckons a text to have, in scene units.
double textWidth(const std::string& text);

void beginSmoothLines(gl::DisplayList& list);
void endSmoothLines(gl::DisplayList& list);

/// Three arrows through the user's origin.
void emitArrows(const AxisDrawing& drawing);
/// Panels, grid lines, ticks, labels and titles of a 3D scene.
void emitFrame(const AxisDrawing& drawing);
/// The rectangle with rounded numbers of a 2D scene.
void emitFlatFrame(const AxisDrawing& drawing);

}  // namespace tessaplot::scene

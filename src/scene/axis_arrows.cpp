#include <algorithm>

#include "scene/axis_parts.h"

namespace tessaplot::scene {

namespace {

/// How far the lines reach beyond the box.
constexpr double overhang = 2;

/// The box, widened so that it holds the user's origin.
Cls1 withOrigin(Cls1 box) {
    for (double* minimum : {&box.MinX, &box.MinY, &box.MinZ})
        *minimum = std::min(*minimum, 0.0);
    for (double* maximum : {&box.MaxX, &box.MaxY, &box.MaxZ})
        *maximum = std::max(*maximum, 0.0);
    return box;
}

void emitLines(const AxisDrawing& drawing, const Cls1& box) {
    drawing.list.glBegin(GL_LINES);
    drawing.vertex(0, 0, box.MinZ - overhang);
    drawing.vertex(0, 0, box.MaxZ + overhang);
    drawing.vertex(box.MinX - overhang, 0, 0);
    drawing.vertex(box.MaxX + overhang, 0, 0);
    drawing.vertex(0, box.MinY - overhang, 0);
    drawing.vertex(0, box.MaxY + overhang, 0);
    drawing.list.glEnd();
}

/// A cone with the middle of its base at a place of the box, turned from the z axis by `degrees` about (x, y, 0).
struct Tip {
    double x, y, z;
    float degrees;
    float axisX, axisY;
};

void emitTip(const AxisDrawing& drawing, const Tip& tip) {
    gl::DisplayList& list = drawing.list;
    list.glPushMatrix();
    list.gluNewQuadric();
    list.glTranslatef(static_cast<float>(tip.x - drawing.scene.SceneCenterX),
                      static_cast<float>(tip.y - drawing.scene.SceneCenterY),
                      static_cast<float>(tip.z - drawing.scene.SceneCenterZ));
    if (tip.degrees != 0) list.glRotatef(tip.degrees, tip.axisX, tip.axisY, 0);
    list.gluCylinder(0.2, 0, 0.5, 16, 16);
    list.gluDeleteQuadric();
    list.glPopMatrix();
}

}  // namespace

void emitArrows(const AxisDrawing& drawing) {
    gl::DisplayList& list = drawing.list;
    beginSmoothLines(list);
    const Cls1 box = withOrigin(drawing.box);
    list.glDisable(GL_LIGHTING);
    list.glColor3f(0, 0, 1);
    list.glLineWidth(1);
    emitLines(drawing, box);
    endSmoothLines(list);
    list.glEnable(GL_LIGHTING);
    list.glColor3f(1, 0, 0);
    emitTip(drawing, {0, 0, box.MaxZ + overhang, 0, 0, 0});
    emitTip(drawing, {box.MaxX + overhang, 0, 0, 90, 0, 1});
    emitTip(drawing, {0, box.MaxY + overhang, 0, -90, 1, 0});
}

}  // namespace tessaplot::scene

#include <cmath>

#include "base/angle.h"
#include "graphs/color_fill.h"
#include "graphs/emitters.h"
#include "scene/trackball.h"

namespace tessaplot::graphs {

namespace {

constexpr double shortestLength = 1e-7;

double nonZeroLength(const scene::Vector3& v) {
    const double length = scene::VecLength(v);
    return length == 0 ? shortestLength : length;
}

/// An axis about which a cone along z turns into the direction `d`; of length 0 for a cone that is there already.
scene::Vector3 axisTowards(const scene::Vector3& d) {
    if (d[2] == 0) return {-d[1], d[0], 0};
    if (d[2] < 0 && d[0] == 0 && d[1] == 0) return {1, 0, 0};
    return {-d[1] * d[2], d[0] * d[2], 0};
}

scene::Vector3 turningAxis(const scene::Vector3& d) {
    const scene::Vector3 axis = axisTowards(d);
    const double length = nonZeroLength(axis);
    return {axis[0] / length, axis[1] / length, 0};
}

}  // namespace

void DrawArrow(gl::DisplayList& list, const Cls9& graph, const GraphContext& context, const Node& from,
               const Node& to) {
    const scene::Vector3 d{to.x - from.x, to.y - from.y, to.z - from.z};
    const double length = nonZeroLength(d);
    double cosine = d[2] / length;
    double angle = base::radiansToDegrees(scene::ArcCos(cosine));
    if (d[2] < 0) angle = 180 - angle;
    const scene::Vector3 axis = turningAxis(d);

    emitFloatColor(list, ColorToRGB(graph.Vect4DColor));
    list.glPushMatrix();
    list.gluNewQuadric();
    list.glTranslatef(static_cast<float>(from.x - context.scene.SceneCenterX),
                      static_cast<float>(from.y - context.scene.SceneCenterY),
                      static_cast<float>(from.z - context.scene.SceneCenterZ));
    list.glRotatef(static_cast<float>(angle), static_cast<float>(axis[0]), static_cast<float>(axis[1]),
                   static_cast<float>(axis[2]));
    list.gluCylinder(length / 5, 0, length, 6, 6);
    list.gluDeleteQuadric();
    list.glPopMatrix();
}

}  // namespace tessaplot::graphs

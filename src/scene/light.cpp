#include "scene/light.h"

namespace tessaplot::scene {

namespace {

void emitLight(gl::DisplayList& list, GLenum light, const std::array<float, 4>& position, const Cls10& colors) {
    list.glLightfv(light, GL_POSITION, position);
    list.glLightfv(light, GL_DIFFUSE, colors.Diffuse);
    list.glLightfv(light, GL_AMBIENT, colors.Amission);
    list.glLightfv(light, GL_SPECULAR, colors.Specular);
}

}  // namespace

void Cls10::SetLight(gl::DisplayList& list) const {
    if (!Enabled) {
        list.glDisable(GL_LIGHTING);
        list.glDisable(GL_LIGHT0);
        list.glDisable(GL_LIGHT1);
        return;
    }
    emitLight(list, GL_LIGHT0, Position, *this);
    const std::array<float, 4> opposite{-Position[0], -Position[0], -Position[0], 1};
    // Lights 2 and 3 are set like light 1 and stay off: only lights 0 and 1 reach the picture.
    for (const GLenum light : {GL_LIGHT1, GL_LIGHT2, GL_LIGHT3})
        emitLight(list, light, opposite, *this);
    list.glLightModelfv(GL_LIGHT_MODEL_AMBIENT, GlobalAmbient);
    list.glLightModelfv(GL_LIGHT_MODEL_TWO_SIDE, std::span(TwoSides).first(1));
    list.glEnable(GL_LIGHTING);
    list.glEnable(GL_LIGHT0);
    list.glEnable(GL_LIGHT1);
}

}  // namespace tessaplot::scene

#include "scene/axis_parts.h"

namespace tessaplot::scene {

double textWidth(const std::string& text) {
    constexpr double charactersInOne = 4.01;
    return static_cast<double>(characterCount(text)) / charactersInOne;
}

void beginSmoothLines(gl::DisplayList& list) {
    list.glEnable(GL_LINE_SMOOTH);
    list.glEnable(GL_BLEND);
    list.glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    list.glHint(GL_LINE_SMOOTH_HINT, GL_NICEST);
}

void endSmoothLines(gl::DisplayList& list) {
    list.glDisable(GL_LINE_SMOOTH);
    list.glDisable(GL_BLEND);
}

}  // namespace tessaplot::scene

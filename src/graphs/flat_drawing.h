#pragma once

#include "gl/display_list.h"

namespace tessaplot::graphs {

/// Unlit drawing with smooth lines.
inline void beginFlatDrawing(gl::DisplayList& list) {
    list.glDisable(GL_LIGHTING);
    list.glEnable(GL_LINE_SMOOTH);
    list.glEnable(GL_BLEND);
    list.glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    list.glHint(GL_LINE_SMOOTH_HINT, GL_NICEST);
}

/// Ends the drawing of flat lines and arrows.
inline void endFlatLines(gl::DisplayList& list) {
    list.glDisable(GL_LINE_SMOOTH);
    list.glDisable(GL_BLEND);
    list.glEnable(GL_LIGHTING);
}

}  // namespace tessaplot::graphs

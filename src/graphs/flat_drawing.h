#pragma once

#include "graphs/smooth_lines.h"

namespace tessaplot::graphs {

/// Unlit drawing with smooth lines.
inline void beginFlatDrawing(gl::DisplayList& list) {
    list.glDisable(GL_LIGHTING);
    beginSmoothLines(list);
}

/// Ends the drawing of flat lines and arrows.
inline void endFlatLines(gl::DisplayList& list) {
    endSmoothLines(list);
    list.glEnable(GL_LIGHTING);
}

}  // namespace tessaplot::graphs

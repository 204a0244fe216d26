#pragma once

#include "gl/display_list.h"
#include "graphs/graph.h"
#include "scene/material.h"

namespace tessaplot::graphs {

/// Begins smooth lines; the lighting stays as it is.
inline void beginSmoothLines(gl::DisplayList& list) {
    list.glEnable(GL_LINE_SMOOTH);
    list.glEnable(GL_BLEND);
    list.glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    list.glHint(GL_LINE_SMOOTH_HINT, GL_NICEST);
}

/// The same for the lit lines of a graph. What the material neon lights has no opacity and would vanish when it is
/// blended: its lines are plain.
inline void beginSmoothLines(gl::DisplayList& list, const Cls9& graph) {
    if (graph.Material != scene::neon) beginSmoothLines(list);
}

inline void endSmoothLines(gl::DisplayList& list) {
    list.glDisable(GL_LINE_SMOOTH);
    list.glDisable(GL_BLEND);
}

}  // namespace tessaplot::graphs

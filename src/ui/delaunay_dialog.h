#pragma once

#include "ui/graph_dialog.h"

namespace tessaplot::ui {

/// The dialog of Delaunay triangles.
class frmF32 : public GraphForm {
 public:
    explicit frmF32(core::AppState& state);
};

}  // namespace tessaplot::ui

#pragma once

#include "ui/contour_dialog.h"

namespace tessaplot::ui {

/// The dialog of a 3D contour plot.
class frmF25 : public ContourForm {
 public:
    explicit frmF25(core::AppState& state);
};

}  // namespace tessaplot::ui

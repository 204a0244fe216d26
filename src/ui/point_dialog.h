#pragma once

#include "ui/graph_dialog.h"

namespace tessaplot::ui {

/// The dialog of a point.
class frmF16 : public GraphForm {
 public:
    explicit frmF16(core::AppState& state);
};

}  // namespace tessaplot::ui

#pragma once

#include "ui/graph_dialog.h"

namespace tessaplot::ui {

/// The dialog of a vertex model.
class frmF27 : public GraphForm {
 public:
    explicit frmF27(core::AppState& state);
};

}  // namespace tessaplot::ui

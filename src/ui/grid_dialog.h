#pragma once

#include "ui/graph_dialog.h"

namespace tessaplot::ui {

/// The dialog of a grid model.
class frmF28 : public GraphForm {
 public:
    explicit frmF28(core::AppState& state);
};

}  // namespace tessaplot::ui

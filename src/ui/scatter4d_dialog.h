#pragma once

#include "ui/graph_dialog.h"

namespace tessaplot::ui {

/// The dialog of a 4D scatter plot.
class frmF29 : public GraphForm {
 public:
    explicit frmF29(core::AppState& state);
};

}  // namespace tessaplot::ui

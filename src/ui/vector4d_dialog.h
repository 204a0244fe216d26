#pragma once

#include "ui/graph_dialog.h"

namespace tessaplot::ui {

/// The dialog of a 4D vector plot.
class frmF30 : public GraphForm {
 public:
    explicit frmF30(core::AppState& state);
};

}  // namespace tessaplot::ui

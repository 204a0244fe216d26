#pragma once

#include "ui/graph_dialog.h"

namespace tessaplot::ui {

/// The dialog of a vector plot.
class frmF24 : public GraphForm {
 public:
    explicit frmF24(core::AppState& state);
};

}  // namespace tessaplot::ui

#pragma once

#include "ui/graph_dialog.h"

namespace tessaplot::ui {

/// The dialog of a colour map.
class frmF22 : public GraphForm {
 public:
    explicit frmF22(core::AppState& state);

 protected:
    bool complete(graphs::Cls9& graph) override;
};

}  // namespace tessaplot::ui

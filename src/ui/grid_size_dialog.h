#pragma once

#include "core/app_state.h"
#include "ui/form.h"

namespace tessaplot::ui {

/// The grid size dialog: rows and columns of the data panel's grid.
class frmOption : public Form {
 public:
    explicit frmOption(core::AppState& state);

 protected:
    void ok() override;

 private:
    core::AppState& state_;
};

}  // namespace tessaplot::ui

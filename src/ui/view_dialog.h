#pragma once

#include "core/app_state.h"
#include "ui/form.h"

namespace tessaplot::ui {

/// The view dialog: the kind of projection, and the ranges of the view.
class frmF14 : public Form {
 public:
    explicit frmF14(core::AppState& state);

 protected:
    void ok() override;

 private:
    core::AppState& state_;
};

}  // namespace tessaplot::ui

#pragma once

#include "core/app_state.h"
#include "ui/form.h"

namespace tessaplot::ui {

/// The light dialog: where the light stands and its colours.
class frmF8 : public Form {
 public:
    explicit frmF8(core::AppState& state);

 protected:
    void ok() override;

 private:
    bool readLight(scene::Cls10& light);

    core::AppState& state_;
};

}  // namespace tessaplot::ui

#pragma once

#include "ui/graph_dialog.h"

namespace tessaplot::ui {

/// The dialog of a surface.
class frmF12 : public GraphForm {
 public:
    explicit frmF12(core::AppState& state);

 protected:
    void changed(Control& control) override;
    void pressed(Control& control) override;

 private:
    void addUnbound();
    void arrange();
    void keepStyleAndFillTogether(const Control& control);
    void chooseTexture();
};

}  // namespace tessaplot::ui

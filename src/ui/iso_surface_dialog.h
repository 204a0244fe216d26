#pragma once

#include "ui/graph_dialog.h"

namespace tessaplot::ui {

/// The dialog of an iso-surface.
class frmF33 : public GraphForm {
 public:
    explicit frmF33(core::AppState& state);

 protected:
    bool complete(graphs::Cls9& graph) override;
    void changed(Control& control) override;
    void added(const graphs::Cls9& graph) override;

 private:
    void showRange();
    void showColor();
    base::PackedColor surfaceColor() const;
};

}  // namespace tessaplot::ui

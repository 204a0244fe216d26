#pragma once

#include "ui/graph_dialog.h"

namespace tessaplot::ui {

/// The dialog of a plot of contour lines. The plots in the plane and on the surface keep their settings in properties
/// of their own.
class ContourForm : public GraphForm {
 protected:
    struct Properties {
        double graphs::Cls9::*interval;
        int graphs::Cls9::*fill;
        int graphs::Cls9::*color1;
        int graphs::Cls9::*color2;
        int graphs::Cls9::*width;
    };
    ContourForm(core::AppState& state, const GraphDialogKind& kind, const Properties& properties);

    void proposeInterval(double step);

    bool complete(graphs::Cls9& graph) override;

 private:
    Properties properties_;
};

/// The dialog of a contour plot.
class frmF23 : public ContourForm {
 public:
    explicit frmF23(core::AppState& state);
};

}  // namespace tessaplot::ui

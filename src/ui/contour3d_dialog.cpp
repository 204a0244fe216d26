#include "ui/contour3d_dialog.h"

namespace tessaplot::ui {

using graphs::Cls9;

frmF25::frmF25(core::AppState& state)
    : ContourForm(
          state, {graphs::graph_type::contour3D, "frmF25", "3D Contour Plot Properties", DataNeed::Surface},
          {&Cls9::Contour3Levels, &Cls9::Con3FillType, &Cls9::Con3Color1, &Cls9::Con3Color2, &Cls9::Con3Width}) {
    if (ranges_) proposeInterval(roundStep(ranges_->value));
}

}  // namespace tessaplot::ui

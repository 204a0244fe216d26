#include "ui/grid_dialog.h"

#include <array>

#include "ui/fields.h"

namespace tessaplot::ui {

namespace {

using graphs::Cls9;

constexpr std::array fields{field::colorBox("Picture1", "Color", &Cls9::GridColor),
                            field::sizes("Combo2", "Width", &Cls9::GridWidth)};

}  // namespace

frmF28::frmF28(core::AppState& state)
    : GraphForm(state, {graphs::graph_type::gridModel, "frmF28", "3D Grid Model Properties", DataNeed::Surface}) {
    draft_.GridColor = base::packColor(40, 70, 160);
    draft_.GridWidth = 1;
    addFields(fields);
    layOut({"Grid", {{"Lines", {{"Picture1"}, {"Combo2"}}}}});
}

}  // namespace tessaplot::ui

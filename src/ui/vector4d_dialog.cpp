#include "ui/vector4d_dialog.h"

#include <array>

#include "ui/fields.h"

namespace tessaplot::ui {

namespace {

using graphs::Cls9;

constexpr std::array fields{field::colorBox("Picture1", "Color", &Cls9::Vect4DColor), field::scatteredPoints("Check1"),
                            field::materials()};

}  // namespace

frmF30::frmF30(core::AppState& state)
    : GraphForm(state, {graphs::graph_type::vector4D, "frmF30", "4D Vector Properties", DataNeed::Volume}) {
    draft_.Vect4DColor = base::packColor(60, 120, 220);
    addFields(fields);
    control("Check1").enabled = data::isIrregular(state.panel.kind());
    layOut({"Arrows", {{"Arrows", {{"Picture1"}, {"Check1"}}}, {"Material", {{"List1"}}}}});
}

}  // namespace tessaplot::ui

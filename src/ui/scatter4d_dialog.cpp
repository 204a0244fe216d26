#include "ui/scatter4d_dialog.h"

#include <array>

#include "ui/fields.h"

namespace tessaplot::ui {

namespace {

using graphs::Cls9;

constexpr std::array fields{field::colorBox("Picture1", "Color", &Cls9::Scat4DColor), field::scatteredPoints("Check1"),
                            field::materials()};

}  // namespace

frmF29::frmF29(core::AppState& state)
    : GraphForm(state, {graphs::graph_type::scatter4D, "frmF29", "4D Scatter Properties", DataNeed::Volume}) {
    draft_.Scat4DColor = base::packColor(60, 120, 220);
    addFields(fields);
    control("Check1").enabled = data::isIrregular(state.panel.kind());
    layOut({"Spheres", {{"Spheres", {{"Picture1"}, {"Check1"}}}, {"Material", {{"List1"}}}}});
}

}  // namespace tessaplot::ui

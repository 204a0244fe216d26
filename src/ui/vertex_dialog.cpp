#include "ui/vertex_dialog.h"

#include <array>

#include "ui/fields.h"

namespace tessaplot::ui {

namespace {

using graphs::Cls9;

constexpr std::array fields{field::colorBox("Picture1", "Color", &Cls9::VertColor),
                            field::sizes("Combo2", "Size", &Cls9::VertSize), field::materials()};

}  // namespace

frmF27::frmF27(core::AppState& state)
    : GraphForm(state, {graphs::graph_type::vertexModel, "frmF27", "3D Vertex Model Properties", DataNeed::Surface}) {
    draft_.VertColor = base::packColor(200, 40, 40);
    draft_.VertSize = 2;
    addFields(fields);
    layOut({"Vertices", {{"Vertices", {{"Picture1"}, {"Combo2"}}}, {"Material", {{"List1"}}}}});
}

}  // namespace tessaplot::ui

#include "ui/vector_dialog.h"

#include <array>

#include "ui/fields.h"

namespace tessaplot::ui {

namespace {

using graphs::Cls9;

constexpr std::array fields{field::colorBox("Picture1", "Color", &Cls9::VectorColor)};

}  // namespace

frmF24::frmF24(core::AppState& state)
    : GraphForm(state, {graphs::graph_type::vector, "frmF24", "Vector Plot Properties", DataNeed::Surface}) {
    draft_.VectorColor = base::packColor(30, 30, 120);
    addFields(fields);
    layOut({"Vectors", {{"Vectors", {{"Picture1"}}}}});
}

}  // namespace tessaplot::ui

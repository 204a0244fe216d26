#include "ui/color_map_dialog.h"

#include <array>

#include "ui/color_map_editor.h"
#include "ui/fields.h"

namespace tessaplot::ui {

namespace {

using graphs::Cls9;

constexpr std::array fields{
    field::option("Option1", "Gradient", &Cls9::ColorMapfilltype, graphs::fill_style::alongZ),
    field::option("Option2", "Color map", &Cls9::ColorMapfilltype, graphs::fill_style::colorMap),
    field::colorBox("Picture1", "1st color", &Cls9::ColorMapcolor1, "The color of the lowest place"),
    field::colorBox("Picture2", "2nd color", &Cls9::ColorMapcolor2, "The color of the highest place")};

}  // namespace

frmF22::frmF22(core::AppState& state)
    : GraphForm(state, {graphs::graph_type::colorMap, "frmF22", "Color Map Properties", DataNeed::Surface}) {
    draft_.ColorMapfilltype = graphs::fill_style::colorMap;
    draft_.ColorMapcolor1 = draft_.SecondColor;
    draft_.ColorMapcolor2 = draft_.FirstColor;
    addFields(fields);
    addPart<ColorMapEditor>("Option2");
    for (const char* box : {"Picture1", "Picture2"})
        enableBy(box, {"Option1"});
    layOut({"Fill", {{"Fill", {{"Option1"}, {"Option2"}, {"Picture1", "Picture2"}}}}});
    layOut(ColorMapEditor::page());
}

/// The legend reads the fill and the colours of a surface.
bool frmF22::complete(Cls9& graph) {
    graph.FillStyle = graph.ColorMapfilltype;
    graph.FirstColor = graph.ColorMapcolor2;
    graph.SecondColor = graph.ColorMapcolor1;
    return true;
}

}  // namespace tessaplot::ui

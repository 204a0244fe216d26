#include "ui/slice_dialog.h"

#include <algorithm>

#include "ui/color_map_editor.h"
#include "ui/fields.h"

namespace tessaplot::ui {

namespace {

using graphs::Cls9;
namespace fill_style = graphs::fill_style;

constexpr std::array fields{
    field::option("Option1", "Gradient", &Cls9::FillStyle, fill_style::alongZ),
    field::option("Option2", "Color map", &Cls9::FillStyle, fill_style::colorMap),
    field::colorBox("Picture7", "1st color", &Cls9::FirstColor, "The color of the highest value"),
    field::colorBox("Picture8", "2nd color", &Cls9::SecondColor, "The color of the lowest value"),
    field::sizes("Combo2", "Width of the contours", &Cls9::LineWidth),
    field::scatteredPoints("Check10"),
    field::materials("List4")};

}  // namespace

frmF31::frmF31(core::AppState& state)
    : GraphForm(state, {graphs::graph_type::slice4D, "frmF31", "4D Slice Properties", DataNeed::Volume}) {
    addFields(fields);
    addPart<ColorMapEditor>("Option2");
    for (int axis = 0; axis < 3; ++axis) {
        SliceEditor& editor = addPart<SliceEditor>(axis, ranges_ ? &*ranges_ : nullptr);
        editors_[static_cast<std::size_t>(axis)] = &editor;
    }
    for (const char* box : {"Picture7", "Picture8"})
        enableBy(box, {"Option1"});
    control("Check10").enabled = data::isIrregular(state.panel.kind());
    for (const SliceEditor* editor : editors_)
        layOut(editor->page());
    layOut({"Color",
            {{"Fill", {{"Option1"}, {"Option2"}, {"Picture7", "Picture8"}}},
             {"Looks", {{"Combo2"}, {"Check10"}, {"List4"}}}}});
    layOut(ColorMapEditor::page());
}

/// Without a slice there is nothing to see; one through the middle across each axis shows the data then.
bool frmF31::complete(Cls9& graph) {
    if (graph.SlicesX.Num + graph.SlicesY.Num + graph.SlicesZ.Num > 0) return true;
    return std::ranges::all_of(editors_, [&](const SliceEditor* editor) { return editor->storeMiddle(graph); });
}

}  // namespace tessaplot::ui

#include "ui/delaunay_dialog.h"

#include <array>

#include "ui/color_map_editor.h"
#include "ui/fill_fields.h"

namespace tessaplot::ui {

namespace {

using graphs::Cls9;

constexpr std::array fields{
    field::check("Check1", "Show Triangles", &Cls9::ShowDS), field::check("Check2", "Show Edges", &Cls9::ShowDG),
    field::colorBox("Picture5", "Edge color", &Cls9::TriColor), field::sizes("Combo2", "Edge width", &Cls9::TriWidth)};

}  // namespace

frmF32::frmF32(core::AppState& state)
    : GraphForm(state, {graphs::graph_type::delaunay, "frmF32", "Delaunay Triangles", DataNeed::ScatteredSurface}) {
    draft_.FillStyle = proposedFill(ranges_);
    draft_.ShowDS = draft_.ShowDG = true;
    draft_.TriColor = base::packColor(40, 40, 60);
    draft_.TriWidth = 1;
    addFields(surfaceFillFields);
    addFields(fields);
    addPart<ColorMapEditor>(colorMapOption);
    enableBy("Picture2", {"Option1", "Option2", "Option3"});
    enableBy("Picture3", {"Option1", "Option2", "Option3", "Option4"});
    for (const char* name : {"Picture5", "Combo2"})
        enableBy(name, {"Check2"});
    std::vector<Frame> frames{{"Triangles", {{"Check1"}, {"Check2", "Picture5", "Combo2"}}}};
    for (Frame& frame : surfaceFillFrames())
        frames.push_back(std::move(frame));
    layOut({"Triangles", std::move(frames)});
    layOut(ColorMapEditor::page());
}

}  // namespace tessaplot::ui

#include "ui/surface_dialog.h"

#include <algorithm>
#include <array>

#include "base/number_text.h"
#include "ui/color_map_editor.h"
#include "ui/control_makers.h"
#include "ui/fill_fields.h"

namespace tessaplot::ui {

namespace {

using graphs::Cls9;
namespace texture_mode = graphs::texture_mode;

constexpr double halfClear = 0.5;

constexpr std::array fields{
    field::option("Option5", "Overlay", &Cls9::TexMode, texture_mode::alone),
    field::option("Option6", "Blend", &Cls9::TexMode, texture_mode::withFill),
    field::colorBox("Picture4", "Color", &Cls9::SecondColor, "The single color"),
    field::check("Check1", "Add Color Map", &Cls9::ShowColormap),
    field::check("Check2", "Add Contour Plot", &Cls9::ShowContour),
    field::check("Check3", "Add Vector Plot", &Cls9::ShowVector),
    field::number("Text2", "", &Cls9::ContourLevel, NumberRule::Positive, "The step between the contours"),
    field::sizes("Combo2", "Width", &Cls9::LineWidth),
    field::scatteredPoints("Check4"),
    field::check("Check5", "Add Texture", &Cls9::ShowTex),
    Field{ControlKind::TextBox, "Text1", "", &Cls9::TexName},
    field::check("Check6", "Transparent", &Cls9::ShowTrans),
    Field{ControlKind::Slider, "Slider1", "", &Cls9::TransAlpha, 0, Entries::None, NumberRule::Any,
          "From clear to opaque"},
    Field{ControlKind::ComboBox, "Combo3", "Draw as", &Cls9::Show, 1, Entries::Shapes}};

/// The options that a colour map takes the place of.
bool isPlainFill(const Control& control) {
    constexpr std::array<std::string_view, 4> names{"Option1", "Option2", "Option3", "Option4"};
    return std::ranges::find(names, control.name) != names.end();
}

}  // namespace

frmF12::frmF12(core::AppState& state)
    : GraphForm(state, {graphs::graph_type::surface, "frmF12", "3D Surface Properties", DataNeed::Surface}) {
    draft_.FillStyle = proposedFill(ranges_);
    draft_.TexMode = texture_mode::withFill;
    draft_.TransAlpha = halfClear;
    if (ranges_) draft_.ContourLevel = roundStep(ranges_->value);
    addFields(surfaceFillFields);
    addFields(fields);
    addUnbound();
    addPart<ColorMapEditor>(colorMapOption);
    arrange();
    control("Check4").enabled = data::isIrregular(state.panel.kind());
}

void frmF12::addUnbound() {
    add(optionButton("Option7", "Colormap", false)).hint = "The texture blends with the color map";
    add(label("Label2", "Interval"));
    add(button("Command1", "Browse..."));
    for (const char* name : {"Picture2", "Picture3"})
        enableBy(name, {"Option1", "Option2", "Option3"});
    enableBy("Picture4", {"Option4"});
    for (const char* name : {"Text2", "Label2", "Combo2"})
        enableBy(name, {"Check2"});
    for (const char* name : {"Text1", "Command1"})
        enableBy(name, {"Check5"});
    enableBy("Slider1", {"Check6"});
}

void frmF12::arrange() {
    std::vector<Frame> fill = surfaceFillFrames();
    fill.front().rows[3].push_back("Picture4");
    layOut({"Fill", std::move(fill)});
    layOut(ColorMapEditor::page());
    layOut({"Plots",
            {{"Extra plots", {{"Check1"}, {"Check2", "Label2", "Text2", "Combo2"}, {"Check3"}, {"Check4"}}},
             {"Texture", {{"Check5", "Text1", "Command1"}}},
             {"Style", {{"Option5", "Option6", "Option7"}}},
             {"Shape", {{"Check6", "Slider1"}, {"Combo3"}}}}});
}

void frmF12::changed(Control& changed) {
    GraphForm::changed(changed);
    keepStyleAndFillTogether(changed);
    // Both boxes show the one color of the lower end.
    if (changed.name == "Picture3") control("Picture4").color = changed.color;
    if (changed.name == "Picture4") control("Picture3").color = changed.color;
}

void frmF12::keepStyleAndFillTogether(const Control& changed) {
    if (changed.name == "Option7") setOn(colorMapOption, true);
    if (isPlainFill(changed) && control("Option7").on) setOn("Option6", true);
}

void frmF12::pressed(Control& pressed) {
    GraphForm::pressed(pressed);
    if (pressed.name == "Command1") chooseTexture();
}

void frmF12::chooseTexture() {
    const auto chosen = desktop().chooseFileName(
        {platform::FileQuestion::Mode::Open, "Open File", "(*.bmp)|*.bmp|*.jpg|*.jpg|*.gif|*.gif"});
    if (chosen) setText("Text1", chosen->path);
}

}  // namespace tessaplot::ui

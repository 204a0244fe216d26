#include "ui/contour_dialog.h"

#include <array>
#include <optional>

#include "ui/color_map_editor.h"
#include "ui/control_makers.h"
#include "ui/fields.h"
#include "ui/number_box.h"

namespace tessaplot::ui {

namespace {

using graphs::Cls9;
namespace fill_style = graphs::fill_style;

/// A round step between the contours of the heights, in scene units.
double heightStep(const std::optional<PanelRanges>& ranges) {
    if (!ranges) return 1;
    return roundStep({ranges->z.lower / ranges->heightScale, ranges->z.upper / ranges->heightScale});
}

}  // namespace

ContourForm::ContourForm(core::AppState& state, const GraphDialogKind& kind, const Properties& properties)
    : GraphForm(state, kind), properties_(properties) {
    draft_.*properties.interval = 1;
    draft_.*properties.fill = fill_style::colorMap;
    draft_.*properties.color1 = draft_.SecondColor;
    draft_.*properties.color2 = draft_.FirstColor;
    draft_.*properties.width = 1;
    const std::array fields{
        field::number("Text1", "Interval", properties.interval, NumberRule::Positive, "The step between the contours"),
        field::sizes("Combo2", "Width", properties.width),
        field::option("Option1", "Gradient", properties.fill, fill_style::alongZ),
        field::option("Option2", "Single", properties.fill, fill_style::single),
        field::option("Option3", "Color map", properties.fill, fill_style::colorMap),
        field::colorBox("Picture1", "1st color", properties.color1, "The color of the lowest contour"),
        field::colorBox("Picture2", "2nd color", properties.color2, "The color of the highest contour")};
    addFields(fields);
    add(checkBox("Check1", "Show Legend", true));
    addPart<ColorMapEditor>("Option3");
    enableBy("Picture1", {"Option1", "Option2"});
    enableBy("Picture2", {"Option1"});
    layOut({"Contours",
            {{"Contours", {{"Text1"}, {"Combo2"}}},
             {"Color", {{"Option1"}, {"Option2"}, {"Option3"}, {"Picture1", "Picture2"}, {"Check1"}}}}});
    layOut(ColorMapEditor::page());
}

void ContourForm::proposeInterval(double step) {
    control("Text1").text = proposedText(step);
}

/// The legend reads the fill and the colours of a surface; a single color has none.
bool ContourForm::complete(Cls9& graph) {
    graph.FillStyle = control("Check1").on ? graph.*properties_.fill : fill_style::single;
    graph.FirstColor = graph.*properties_.color2;
    graph.SecondColor = graph.*properties_.color1;
    return true;
}

frmF23::frmF23(core::AppState& state)
    : ContourForm(state, {graphs::graph_type::contour, "frmF23", "Contour Plot Properties", DataNeed::Surface},
                  {&Cls9::ContourLevels, &Cls9::ConFillType, &Cls9::ConColor1, &Cls9::ConColor2, &Cls9::ConWidth}) {
    proposeInterval(heightStep(ranges_));
    control("Text1").hint = "The step between the contours in scene units: the frame is ten of them wide";
}

}  // namespace tessaplot::ui

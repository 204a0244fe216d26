#include "ui/iso_surface_dialog.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <string>

#include "base/number_text.h"
#include "graphs/emitters.h"
#include "ui/color_map_editor.h"
#include "ui/control_makers.h"
#include "ui/fields.h"
#include "ui/number_box.h"

namespace tessaplot::ui {

namespace {

using graphs::Cls9;

constexpr std::array fields{field::number("Text1", "Value", &Cls9::IsoSurValue, NumberRule::Any,
                                          "The surface lies where the data have this value"),
                            field::materials()};

}  // namespace

frmF33::frmF33(core::AppState& state)
    : GraphForm(state, {graphs::graph_type::isoSurface, "frmF33", "IsoSurface Properties", DataNeed::Volume}) {
    if (ranges_) draft_.IsoSurValue = ranges_->value.middle();
    addFields(fields);
    add(label("Label1", ""));
    add({.kind = ControlKind::Slider, .name = "Slider1", .caption = "Value"});
    // The surface takes the color of its value.
    add({.kind = ControlKind::Ramp, .name = "Ramp2", .caption = "Color"});
    addPart<ColorMapEditor>();
    showRange();
    showColor();
    layOut({"Surface", {{"Value", {{"Label1"}, {"Text1"}, {"Slider1"}, {"Ramp2"}}}, {"Material", {{"List1"}}}}});
    layOut(ColorMapEditor::page());
}

void frmF33::showRange() {
    Control& slider = control("Slider1");
    slider.enabled = ranges_.has_value();
    if (!ranges_) {
        control("Label1").caption = "The range of the data is not known.";
        return;
    }
    slider.minimum = ranges_->value.lower;
    slider.maximum = ranges_->value.upper;
    slider.value = draft_.IsoSurValue;
    control("Label1").caption =
        "The data run from " + base::generalText(slider.minimum) + " to " + base::generalText(slider.maximum) + ".";
}

base::PackedColor frmF33::surfaceColor() const {
    const Control& slider = control("Slider1");
    const std::vector<base::PackedColor>& ramp = control("Ramp1").ramp;
    const double span = slider.maximum - slider.minimum;
    const double share = span > 0 ? (slider.value - slider.minimum) / span : 0;
    return ramp.at(static_cast<std::size_t>(std::lround(share * static_cast<double>(ramp.size() - 1))));
}

void frmF33::showColor() {
    control("Ramp2").ramp = {surfaceColor()};
}

void frmF33::changed(Control& changed) {
    GraphForm::changed(changed);
    Control& slider = control("Slider1");
    if (changed.name == "Slider1") control("Text1").text = proposedText(changed.value);
    if (changed.name == "Text1")
        if (const std::optional<double> value = numberIn(changed.text))
            slider.value = std::clamp(*value, slider.minimum, slider.maximum);
    showColor();
}

bool frmF33::complete(Cls9& graph) {
    graph.IsoSurColor = surfaceColor();
    return true;
}

void frmF33::added(const Cls9& graph) {
    desktop().status("The iso-surface has " +
                     std::to_string(graphs::isoSurfaceOf(graph, state().graphContext()).triangles.size()) +
                     " triangles.");
}

}  // namespace tessaplot::ui

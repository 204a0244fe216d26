#include "ui/scale_page.h"

#include <array>
#include <optional>

#include "ui/control_makers.h"
#include "ui/number_box.h"

namespace tessaplot::ui {

namespace {

using data::Scaling;

/// Scale modes 1 to 3.
struct Mode {
    const char* option;
    const char* caption;
};
constexpr std::array<Mode, 3> modes{{{"Option3", "Square"}, {"Option4", "Equal"}, {"Option5", "Custom"}}};
constexpr int customMode = 3;

struct Ratio {
    const char* box;
    double Scaling::*member;
};
constexpr std::array<Ratio, 4> ratios{{{"Text7", &Scaling::ScaleRatioX},
                                       {"Text8", &Scaling::ScaleRatioY},
                                       {"Text9", &Scaling::ScaleRatioZ},
                                       {"Text10", &Scaling::ZoomZ}}};

/// A volume ties its height to the two other ratios; the height of a surface has a zoom of its own.
bool counts(double Scaling::*ratio, data::DataKind kind) {
    if (ratio == &Scaling::ScaleRatioZ) return data::isVolume(kind);
    if (ratio == &Scaling::ZoomZ) return !data::isVolume(kind);
    return true;
}

}  // namespace

std::vector<Control> ScalePage::controls() const {
    const bool flat = state_.scene.SceneMode == scene::mode2D;
    std::vector<Control> controls;
    for (std::size_t i = 0; i < modes.size(); ++i)
        controls.push_back(
            optionButton(modes[i].option, modes[i].caption, state_.scaling.ScaleMode == static_cast<int>(i) + 1));
    controls.push_back(label("Label1", flat ? "X:Y=" : "X:Y:Z="));
    controls.push_back(label("Label16", ":"));
    controls.push_back(label("Label17", ":"));
    controls.push_back(label("Label18", "Zoom Z:"));
    for (const Ratio& ratio : ratios)
        controls.push_back(textBox(ratio.box, "", boxText(state_.scaling.*ratio.member)));
    for (Control& control : controls)
        if (control.name == "Label17" || control.name == "Text9") control.visible = !flat;
    return controls;
}

Page ScalePage::page() {
    return {"Scales",
            {{"Scales",
              {{"Option3"},
               {"Option4"},
               {"Option5"},
               {"Label1", "Text7", "Label16", "Text8", "Label17", "Text9"},
               {"Label18", "Text10"}}}}};
}

void ScalePage::enableWhatCounts() {
    const bool custom = chosenMode() == customMode;
    for (const char* label : {"Label1", "Label16", "Label17", "Label18"})
        form_.control(label).enabled = custom;
    for (const Ratio& ratio : ratios)
        form_.control(ratio.box).enabled = custom;
}

int ScalePage::chosenMode() const {
    for (std::size_t i = 0; i < modes.size(); ++i)
        if (form_.control(modes[i].option).on) return static_cast<int>(i) + 1;
    return state_.scaling.ScaleMode;
}

bool ScalePage::read(Scaling& scaling) {
    scaling.ScaleMode = chosenMode();
    for (const Ratio& ratio : ratios) {
        Control& box = form_.control(ratio.box);
        if (box.visible && !readRatio(box, ratio.member, scaling)) return false;
    }
    return true;
}

bool ScalePage::readRatio(Control& box, double Scaling::*ratio, Scaling& scaling) {
    if (scaling.ScaleMode != customMode) {
        // Kept for later, but of no effect now: no fault is told.
        scaling.*ratio = numberIn(box.text).value_or(scaling.*ratio);
        return true;
    }
    const std::optional<double> value = readNumber(box, state_.desktop);
    if (!value) return false;
    if (*value <= 0 && counts(ratio, state_.panel.kind())) {
        tell(state_.desktop, "Error", "The scale ratios and the zoom of Z must be larger than 0.");
        return false;
    }
    scaling.*ratio = *value;
    return true;
}

}  // namespace tessaplot::ui

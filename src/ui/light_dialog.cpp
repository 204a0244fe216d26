#include "ui/light_dialog.h"

#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include "core/refresh.h"
#include "ui/control_makers.h"
#include "ui/number_box.h"

namespace tessaplot::ui {

namespace {

using scene::Cls10;

constexpr std::size_t entries = 4;

struct VectorControls {
    const char* frame;
    std::array<const char*, entries> boxes;
    std::array<const char*, entries> captions;
    std::array<float, entries> Cls10::*member;
};
constexpr std::array coordinates{"X", "Y", "Z", "W"};
constexpr std::array components{"Red", "Green", "Blue", "Alpha"};
constexpr std::array<VectorControls, 4> vectors{{
    {"Position", {"Text1", "Text2", "Text3", "Text16"}, coordinates, &Cls10::Position},
    {"Diffuse", {"Text4", "Text5", "Text6", "Text7"}, components, &Cls10::Diffuse},
    {"Ambient", {"Text8", "Text9", "Text10", "Text11"}, components, &Cls10::Amission},
    {"Specular", {"Text12", "Text13", "Text14", "Text15"}, components, &Cls10::Specular},
}};

}  // namespace

frmF8::frmF8(core::AppState& state) : Form("frmF8", "Light Properties"), state_(state) {
    const Cls10& light = state.TheLight;
    add(checkBox("Check2", "Enabled", light.Enabled));
    add(checkBox("Check3", "Two Sides", light.TwoSides[0] != 0));
    Page page{"Light", {{"", {{"Check2", "Check3"}}}}};
    for (const VectorControls& vector : vectors) {
        Frame frame{vector.frame, {{}}};
        for (std::size_t i = 0; i < entries; ++i) {
            add(textBox(vector.boxes[i], vector.captions[i], boxText((light.*vector.member)[i])));
            frame.rows.front().emplace_back(vector.boxes[i]);
        }
        page.frames.push_back(std::move(frame));
    }
    addPage(std::move(page));
}

/// False, after a message, if a box holds no number that the light can take.
bool frmF8::readLight(Cls10& light) {
    light.Enabled = control("Check2").on;
    light.TwoSides[0] = control("Check3").on ? 1 : 0;
    for (const VectorControls& vector : vectors)
        for (std::size_t i = 0; i < entries; ++i) {
            const std::optional<double> value = readNumber(control(vector.boxes[i]), state_.desktop);
            if (!value) return false;
            const auto entry = static_cast<float>(*value);
            if (!std::isfinite(entry)) {
                tellIllegalData(state_.desktop);
                return false;
            }
            (light.*vector.member)[i] = entry;
        }
    return true;
}

void frmF8::ok() {
    Cls10 light = state_.TheLight;
    if (!readLight(light)) return;
    state_.TheLight = light;
    close();
    core::rebuildForCamera(state_);
}

}  // namespace tessaplot::ui

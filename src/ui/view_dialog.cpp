#include "ui/view_dialog.h"

#include <array>
#include <optional>

#include "core/refresh.h"
#include "ui/control_makers.h"
#include "ui/number_box.h"

namespace tessaplot::ui {

namespace {

using core::AppState;

struct RangeBox {
    const char* name;
    const char* caption;
    double AppState::*limit;
};
constexpr std::array<RangeBox, 6> boxes{{{"Text1", "Min x", &AppState::ViewMinX},
                                         {"Text2", "Max x", &AppState::ViewMaxX},
                                         {"Text3", "Min y", &AppState::ViewMinY},
                                         {"Text4", "Max y", &AppState::ViewMaxY},
                                         {"Text5", "Min z", &AppState::ViewMinZ},
                                         {"Text6", "Max z", &AppState::ViewMaxZ}}};
constexpr int ortho = 1;
constexpr int perspective = 2;

}  // namespace

frmF14::frmF14(core::AppState& state) : Form("frmF14", "View Setting"), state_(state) {
    const bool isPerspective = state.TheView.ProjectType == perspective;
    add(optionButton("Option1", "Ortho", !isPerspective));
    add(optionButton("Option2", "Perspective", isPerspective));
    for (const RangeBox& box : boxes)
        add(textBox(box.name, box.caption, boxText(state.*box.limit)));
    addPage({"View",
             {{"Projection Type", {{"Option1", "Option2"}}},
              {"View Intervals", {{"Text1", "Text2"}, {"Text3", "Text4"}, {"Text5", "Text6"}}}}});
}

void frmF14::ok() {
    std::array<double, boxes.size()> limits{};  // An empty box is a limit of 0.
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        Control& box = control(boxes[i].name);
        if (isBlank(box.text)) continue;
        const std::optional<double> limit = readNumber(box, state_.desktop);
        if (!limit) return;
        limits[i] = *limit;
    }
    for (std::size_t i = 0; i < boxes.size(); ++i)
        state_.*boxes[i].limit = limits[i];
    state_.TheView.ProjectType = control("Option2").on ? perspective : ortho;
    close();
    core::rebuildForCamera(state_);
}

}  // namespace tessaplot::ui

#include "ui/axis_dialog.h"

#include <string>
#include <tuple>
#include <utility>

#include "base/failure.h"
#include "core/refresh.h"
#include "ui/control_makers.h"
#include "ui/material_items.h"
#include "ui/number_box.h"

namespace tessaplot::ui {

namespace {

using scene::Cls3;

/// The controls of one of the three panels.
struct PanelControls {
    const char* frame;
    const char* check;
    const char* picture;
    const char* combo;
    bool Cls3::*show;
    base::PackedColor Cls3::*color;
    int Cls3::*material;
};
constexpr std::array<PanelControls, 3> panels{{
    {"XY Panel", "Check2", "Picture1", "Combo1", &Cls3::ShowXYPanel, &Cls3::XYPanelColor, &Cls3::XYPanelMaterial},
    {"XZ Panel", "Check3", "Picture2", "Combo2", &Cls3::ShowXZPanel, &Cls3::XZPanelColor, &Cls3::XZPanelMaterial},
    {"YZ Panel", "Check4", "Picture3", "Combo3", &Cls3::ShowYZPanel, &Cls3::YZPanelColor, &Cls3::YZPanelMaterial},
}};

/// The lines of a grid that run in one direction.
struct GridFamily {
    const char* check;
    const char* caption;
    bool Cls3::*show;
};
/// The controls of the grid on one of the panels.
struct GridControls {
    const char* frame;
    GridFamily first;
    GridFamily second;
    const char* picture;
    base::PackedColor Cls3::*color;
};
constexpr std::array<GridControls, 3> grids{{
    {"XY Grid",
     {"Check5", "X direction", &Cls3::ShowXYXGrid},
     {"Check6", "Y direction", &Cls3::ShowXYYGrid},
     "Picture5",
     &Cls3::XYGridColor},
    {"XZ Grid",
     {"Check7", "X direction", &Cls3::ShowXZXGrid},
     {"Check8", "Z direction", &Cls3::ShowXZZGrid},
     "Picture7",
     &Cls3::XZGridColor},
    {"YZ Grid",
     {"Check9", "Y direction", &Cls3::ShowYZYGrid},
     {"Check10", "Z direction", &Cls3::ShowYZZGrid},
     "Picture9",
     &Cls3::YZGridColor},
}};

/// A text box that stands for a property.
template <class Value>
struct Box {
    const char* name;
    const char* caption;
    Value member;
};
constexpr std::array<Box<int Cls3::*>, 3> intervals{{{"Text1", "X Axis Intervals", &Cls3::LabelNumX},
                                                     {"Text2", "Y Axis Intervals", &Cls3::LabelNumY},
                                                     {"Text3", "Z Axis Intervals", &Cls3::LabelNumZ}}};
constexpr std::array<Box<std::string Cls3::*>, 3> titles{{{"Text4", "X Axis Title", &Cls3::TitleX},
                                                          {"Text5", "Y Axis Title", &Cls3::TitleY},
                                                          {"Text6", "Z Axis Title", &Cls3::TitleZ}}};
constexpr std::array fontButtons{"Command3", "Command4"};

}  // namespace

frmF3::frmF3(core::AppState& state) : Form("frmF3", "Axis Properties"), state_(state), scales_(*this, state) {
    nameButtons("Command1", "Command2");
    addFramePage();
    addPanelsPage();
    addGridsPage();
    for (Control& control : scales_.controls())
        add(std::move(control));
    addPage(ScalePage::page());
    enableWhatCounts();
}

void frmF3::addFramePage() {
    const Cls3& axis = state_.TheAxis;
    add(checkBox("Check1", " Show Axis", axis.Show));
    add(checkBox("Check11", "Show Legend", state_.ShowLegend));
    add(optionButton("Option1", "Panel Style", axis.AxisStyle == 1));
    add(optionButton("Option2", "Line Style", axis.AxisStyle != 1));
    for (const auto& box : intervals)
        add(textBox(box.name, box.caption, std::to_string(axis.*box.member)));
    for (const auto& box : titles)
        add(textBox(box.name, box.caption, axis.*box.member));
    for (const char* name : fontButtons)
        add(button(name, "Font..."));
    addPage({"Axis",
             {{"", {{"Check1", "Check11"}}},
              {"Style", {{"Option1", "Option2"}}},
              {"Intervals", {{"Text1"}, {"Text2"}, {"Text3"}, {"Command3"}}},
              {"Titles", {{"Text4"}, {"Text5"}, {"Text6"}, {"Command4"}}}}});
}

void frmF3::addPanelsPage() {
    const Cls3& axis = state_.TheAxis;
    Page page{"Panels", {}};
    for (const PanelControls& panel : panels) {
        add(checkBox(panel.check, " Show", axis.*panel.show));
        add(colorBox(panel.picture, "Color", axis.*panel.color));
        add(comboBox(panel.combo, "Material", materialItems(), materialEntry(axis.*panel.material)));
        page.frames.push_back({panel.frame, {{panel.check}, {panel.picture}, {panel.combo}}});
    }
    addPage(std::move(page));
}

void frmF3::addGridsPage() {
    const Cls3& axis = state_.TheAxis;
    Page page{"Grids", {}};
    for (const GridControls& grid : grids) {
        add(checkBox(grid.first.check, grid.first.caption, axis.*grid.first.show));
        add(checkBox(grid.second.check, grid.second.caption, axis.*grid.second.show));
        add(colorBox(grid.picture, "Color", axis.*grid.color));
        page.frames.push_back({grid.frame, {{grid.first.check, grid.second.check}, {grid.picture}}});
    }
    addPage(std::move(page));
}

/// True if the frame of panels and labels is what the axis shows; all but the style belongs to it.
bool frmF3::framed() const {
    return control("Check1").on && control("Option1").on;
}

void frmF3::enableWhatCounts() {
    for (const char* style : {"Option1", "Option2"})
        control(style).enabled = control("Check1").on;
    const bool frame = framed();
    for (const auto& box : intervals)
        control(box.name).enabled = frame;
    for (const auto& box : titles)
        control(box.name).enabled = frame;
    for (const char* button : fontButtons)
        control(button).enabled = frame;
    for (const PanelControls& panel : panels) {
        control(panel.check).enabled = frame;
        for (const char* dependent : {panel.picture, panel.combo})
            control(dependent).enabled = frame && control(panel.check).on;
    }
    for (const GridControls& grid : grids)
        for (const char* name : {grid.first.check, grid.second.check, grid.picture})
            control(name).enabled = frame;
    scales_.enableWhatCounts();
}

void frmF3::changed(Control&) {
    enableWhatCounts();
}

void frmF3::pressed(Control& control) {
    const platform::Desktop& desktop = state_.desktop;
    if (control.kind == ControlKind::ColorBox) {
        control.color = desktop.pickColor(control.color).value_or(control.color);
    } else {
        platform::FontChoice& font = fonts_[control.name == fontButtons[0] ? 0 : 1];
        font = desktop.pickFont(font).value_or(font);
    }
}

void frmF3::copyPanels(Cls3& axis) const {
    for (const PanelControls& panel : panels) {
        axis.*panel.show = control(panel.check).on;
        axis.*panel.color = control(panel.picture).color;
        if (const int entry = control(panel.combo).selected; entry >= 0) axis.*panel.material = entry + 1;
    }
}

void frmF3::copyGrids(Cls3& axis) const {
    for (const GridControls& grid : grids) {
        axis.*grid.first.show = control(grid.first.check).on;
        axis.*grid.second.show = control(grid.second.check).on;
        axis.*grid.color = control(grid.picture).color;
    }
}

bool frmF3::copyIntervals(Cls3& axis) {
    const std::string message = "The number of intervals of an axis must be a whole number between 1 and " +
                                std::to_string(Cls3::mostIntervals) + ".";
    for (const auto& box : intervals) {
        const std::optional<int> count = readCount(control(box.name), 1, Cls3::mostIntervals, message, state_.desktop);
        if (!count) return false;
        axis.*box.member = *count;
    }
    return true;
}

void frmF3::copyTitles(Cls3& axis) const {
    for (const auto& box : titles)
        axis.*box.member = control(box.name).text;
}

std::optional<frmF3::Settings> frmF3::readSettings() {
    Settings wanted{state_.TheAxis, state_.scaling, control("Check11").on};
    wanted.axis.Show = control("Check1").on;
    wanted.axis.AxisStyle = control("Option1").on ? 1 : 2;
    if (!scales_.read(wanted.scaling)) return std::nullopt;
    if (framed()) {
        copyPanels(wanted.axis);
        copyGrids(wanted.axis);
        if (!copyIntervals(wanted.axis)) return std::nullopt;
        copyTitles(wanted.axis);
    }
    return wanted;
}

/// True if data come out the same under both.
bool frmF3::scaleAlike(const data::Scaling& one, const data::Scaling& other) {
    const auto settings = [](const data::Scaling& s) {
        return std::tie(s.ScaleMode, s.ScaleRatioX, s.ScaleRatioY, s.ScaleRatioZ, s.ZoomZ);
    };
    return settings(one) == settings(other);
}

data::ClsData frmF3::filledAnew(data::Scaling& scaling) const {
    data::ClsData filled;
    filled.GetData(state_.panel, scaling, state_.gridding, state_.desktop);
    if (filled.StepsX < 1 || filled.StepsY < 1)
        throw base::Failure(base::FailureCode::BadInput, "The data panel holds no data to scale.");
    return filled;
}

/// Puts the settings in force, or throws a Failure and leaves all as it was.
void frmF3::apply(Settings wanted) {
    // Data are scaled while they are filled in. As long as no graph has asked for any, there is nothing to scale.
    const bool fills = state_.TheData.StepsX > 0 && !scaleAlike(wanted.scaling, state_.scaling);
    data::ClsData filled = fills ? filledAnew(wanted.scaling) : state_.TheData;
    const auto exchange = [&] {
        std::swap(state_.TheAxis, wanted.axis);
        std::swap(state_.scaling, wanted.scaling);
        std::swap(state_.ShowLegend, wanted.showLegend);
        std::swap(state_.TheData, filled);
    };
    exchange();
    try {
        core::RebuildScene(state_);
    } catch (...) {
        exchange();
        throw;
    }
}

void frmF3::ok() {
    std::optional<Settings> wanted = readSettings();
    if (!wanted) return;
    try {
        apply(std::move(*wanted));
    } catch (const base::Failure& failure) {
        if (failure.code() != base::FailureCode::Cancelled) tell(state_.desktop, "Error", failure.what());
        return;
    }
    state_.AxisDialogOk = true;
    close();
    core::fitView(state_);
}

void frmF3::dismissed() {
    state_.AxisDialogOk = false;
}

}  // namespace tessaplot::ui

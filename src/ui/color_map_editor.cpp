#include "ui/color_map_editor.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "base/number_text.h"
#include "graphs/color_fill.h"
#include "ui/control_makers.h"
#include "ui/number_box.h"

namespace tessaplot::ui {

namespace {

using graphs::Cls9;

constexpr int mostStops = 31;
constexpr int rampColors = 64;
constexpr double lastPosition = 100;

constexpr std::array<std::string_view, 5> rampNames{"Rainbow", "Earth", "Fiery", "Marine", "Grey"};
constexpr std::string_view customName = "Custom";

constexpr std::string_view mapList = "Combo1";
constexpr std::string_view picture = "Ramp1";
constexpr std::string_view customCheck = "CheckCustom";
constexpr std::string_view stopList = "ListStops";
constexpr std::string_view position = "TextStop";
constexpr std::string_view stopColor = "ColorStop";
constexpr std::string_view addButton = "AddStop";
constexpr std::string_view moveButton = "MoveStop";
constexpr std::string_view removeButton = "RemoveStop";
constexpr std::array editing{stopList, position, stopColor, addButton, moveButton, removeButton};

std::vector<base::PackedColor> pictureOf(const Cls9& graph) {
    std::vector<base::PackedColor> colors;
    colors.reserve(rampColors);
    for (int i = 0; i < rampColors; ++i)
        colors.push_back(colorOnRamp(graph, i / (rampColors - 1.0)));
    return colors;
}

std::vector<Item> rampItems() {
    std::vector<Item> items;
    for (const std::string_view name : rampNames) {
        Cls9 graph;
        graphs::ApplyNamedMap(graph, name);
        items.push_back({std::string(name), pictureOf(graph)});
    }
    return items;
}

}  // namespace

base::PackedColor colorOnRamp(const Cls9& graph, double share) {
    graphs::Rgb color;
    graphs::rampColor(graph, share * lastPosition, 0, lastPosition, color);
    const auto byte = [](double channel) { return static_cast<int>(std::lround(std::clamp(channel, 0.0, 1.0) * 255)); };
    return base::packColor(byte(color.r), byte(color.g), byte(color.b));
}

ColorMapEditor::ColorMapEditor(Form& form, const platform::Desktop& desktop, std::string_view fillOption)
    : form_(form), desktop_(desktop), fillOption_(fillOption) {}

Page ColorMapEditor::page() {
    const auto row = [](auto... names) { return std::vector<std::string>{std::string(names)...}; };
    return {"Color Map",
            {{"Color map", {row(mapList), row(picture), row(customCheck)}},
             {"Stops of the custom map",
              {row(stopList), row(position, stopColor), row(addButton, moveButton, removeButton)}}}};
}

std::vector<Control> ColorMapEditor::controls() const {
    const auto text = [](std::string_view name) { return std::string(name); };
    Control preview;
    preview.kind = ControlKind::Ramp;
    preview.name = picture;
    preview.caption = "Preview";
    preview.ramp = pictureOf(ramp_);
    Control custom = checkBox(text(customCheck), "Custom", false);
    custom.hint = "Change the stops of the color map";
    Control list = comboBox(text(stopList), "Stops", stopItems(), 0);
    list.kind = ControlKind::ListBox;
    std::vector<Control> controls{comboBox(text(mapList), "Color map", rampItems(), 0),
                                  preview,
                                  custom,
                                  list,
                                  textBox(text(position), "Position (%)", "0"),
                                  colorBox(text(stopColor), "Color", stops().front().color),
                                  button(text(addButton), "Add"),
                                  button(text(moveButton), "Move"),
                                  button(text(removeButton), "Remove")};
    for (Control& control : controls)
        control.enabled = std::ranges::find(editing, control.name) == editing.end();
    return controls;
}

bool ColorMapEditor::isCustom() const {
    return form_.control(customCheck).on;
}

int ColorMapEditor::selected() const {
    return form_.control(stopList).selected;
}

void ColorMapEditor::changed(const Control& control) {
    if (control.name == mapList) {
        loadNamed();
        turnOn();
    } else if (control.name == customCheck) {
        for (const std::string_view name : editing)
            form_.control(name).enabled = control.on;
        if (!control.on) loadNamed();
        showStops(0);
        turnOn();
    } else if (control.name == stopList) {
        showSelected();
    }
}

void ColorMapEditor::pressed(const Control& control) {
    if (control.name == addButton) addStop();
    if (control.name == moveButton) moveStop();
    if (control.name == removeButton) removeStop();
    if (control.name == stopColor) recolorStop();
}

void ColorMapEditor::store(Cls9& graph) const {
    const int map = form_.control(mapList).selected;
    graph.ColorName = isCustom() ? customName : rampNames.at(static_cast<std::size_t>(map));
    graph.ColorNum = ramp_.ColorNum;
    graph.ColorPos = ramp_.ColorPos;
    graph.ColorR = ramp_.ColorR;
    graph.ColorG = ramp_.ColorG;
    graph.ColorB = ramp_.ColorB;
}

void ColorMapEditor::loadNamed() {
    graphs::ApplyNamedMap(ramp_, rampNames.at(static_cast<std::size_t>(form_.control(mapList).selected)));
    showStops(0);
}

void ColorMapEditor::turnOn() {
    if (!fillOption_.empty()) form_.setOn(fillOption_, true);
}

std::vector<Item> ColorMapEditor::stopItems() const {
    std::vector<Item> items;
    items.reserve(mostStops);
    for (const Stop& stop : stops())
        items.push_back({base::generalText(stop.position) + " %", {stop.color}});
    return items;
}

void ColorMapEditor::showStops(int selected) {
    Control& list = form_.control(stopList);
    list.items = stopItems();
    list.selected = selected;
    form_.control(picture).ramp = pictureOf(ramp_);
    showSelected();
}

void ColorMapEditor::showSelected() {
    const Stop stop = stops().at(static_cast<std::size_t>(selected()));
    form_.control(position).text = base::generalText(stop.position);
    form_.control(stopColor).color = stop.color;
}

std::vector<ColorMapEditor::Stop> ColorMapEditor::stops() const {
    std::vector<Stop> stops;
    stops.reserve(mostStops);
    for (int i = 0; i < ramp_.ColorNum; ++i)
        stops.push_back({ramp_.ColorPos(i), base::packColor(ramp_.ColorR(i), ramp_.ColorG(i), ramp_.ColorB(i))});
    return stops;
}

void ColorMapEditor::replaceStops(const std::vector<Stop>& stops, int selected) {
    ramp_.ColorNum = static_cast<int>(stops.size());
    for (int i = 0; i < ramp_.ColorNum; ++i) {
        const Stop& stop = stops[static_cast<std::size_t>(i)];
        ramp_.ColorPos(i) = stop.position;
        ramp_.ColorR(i) = base::RedOf(stop.color);
        ramp_.ColorG(i) = base::GreenOf(stop.color);
        ramp_.ColorB(i) = base::BlueOf(stop.color);
    }
    showStops(selected);
}

bool ColorMapEditor::tellIf(bool refused, std::string_view message) const {
    if (refused) tell(desktop_, "Error", message);
    return refused;
}

void ColorMapEditor::addStop() {
    std::vector<Stop> edited = stops();
    if (tellIf(edited.size() >= mostStops, "A color map has at most 31 stops.")) return;
    const std::optional<double> at = readNumber(form_.control(position), desktop_);
    if (!at) return;
    if (tellIf(!(*at > 0 && *at < lastPosition), "The position of a stop must lie between 0 and 100.")) return;
    const auto next = std::ranges::find_if(edited, [&](const Stop& stop) { return stop.position >= *at; });
    if (tellIf(next->position == *at, "There is a stop at this position already.")) return;
    const auto place = next - edited.begin();
    // The new stop changes nothing in the picture until it is given a colour.
    edited.insert(next, {*at, colorOnRamp(ramp_, *at / lastPosition)});
    replaceStops(edited, static_cast<int>(place));
}

void ColorMapEditor::moveStop() {
    std::vector<Stop> edited = stops();
    const auto at = static_cast<std::size_t>(selected());
    const std::optional<double> to = readNumber(form_.control(position), desktop_);
    if (!to) return;
    const bool outer = at == 0 || at + 1 == edited.size();
    if (tellIf(outer, "The first and the last stop stay at 0 and 100.")) return;
    const double lower = edited[at - 1].position;
    const double upper = edited[at + 1].position;
    if (tellIf(!(*to > lower && *to < upper), "The position of this stop must lie between those of its neighbors, " +
                                                  base::generalText(lower) + " and " + base::generalText(upper) + "."))
        return;
    edited[at].position = *to;
    replaceStops(edited, selected());
}

void ColorMapEditor::removeStop() {
    std::vector<Stop> edited = stops();
    const auto at = static_cast<std::size_t>(selected());
    if (tellIf(at == 0 || at + 1 == edited.size(), "The first and the last stop cannot be removed.")) return;
    edited.erase(edited.begin() + selected());
    replaceStops(edited, selected());
}

void ColorMapEditor::recolorStop() {
    std::vector<Stop> edited = stops();
    Stop& stop = edited.at(static_cast<std::size_t>(selected()));
    if (const auto chosen = desktop_.pickColor(stop.color)) {
        stop.color = *chosen;
        replaceStops(edited, selected());
    }
}

}  // namespace tessaplot::ui

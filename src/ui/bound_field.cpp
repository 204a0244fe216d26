#include "ui/bound_field.h"

#include <array>
#include <optional>
#include <type_traits>

#include "ui/material_items.h"
#include "ui/number_box.h"

namespace tessaplot::ui {

namespace {

using graphs::Cls9;

constexpr int largestSize = 8;
constexpr std::array shapes{"Points", "Lines", "Filled"};

std::vector<Item> itemsOf(Entries entries) {
    std::vector<Item> items;
    switch (entries) {
        case Entries::Sizes:
            for (int size = 1; size <= largestSize; ++size)
                items.push_back({std::to_string(size)});
            break;
        case Entries::Materials:
            return materialItems();
        case Entries::Shapes:
            for (const char* shape : shapes)
                items.push_back({shape});
            break;
        case Entries::None:
            break;
    }
    return items;
}

double propertyNumber(const Cls9& graph, const Property& property) {
    return std::visit(
        [&](auto member) -> double {
            if constexpr (std::is_same_v<decltype(member), std::string Cls9::*>)
                return 0;
            else
                return static_cast<double>(graph.*member);
        },
        property);
}

void setNumber(Cls9& graph, const Property& property, double value) {
    std::visit(
        [&](auto member) {
            using Value = std::remove_reference_t<decltype(graph.*member)>;
            if constexpr (std::is_arithmetic_v<Value>) graph.*member = static_cast<Value>(value);
        },
        property);
}

bool storeText(const Field& field, Control& box, Cls9& graph, const platform::Desktop& desktop) {
    if (const auto* text = std::get_if<std::string Cls9::*>(&field.property)) {
        if (box.text.empty()) tellMissingEntry(desktop);
        graph.*(*text) = box.text;
        return !box.text.empty();
    }
    const std::optional<double> number = readNumber(box, desktop);
    if (!number) return false;
    if (field.rule == NumberRule::Positive && !(*number > 0)) {
        tellIllegalData(desktop);
        return false;
    }
    setNumber(graph, field.property, *number);
    return true;
}

}  // namespace

Control controlFor(const Field& field, const Cls9& graph) {
    Control control;
    control.kind = field.kind;
    control.name = field.name;
    control.caption = field.caption;
    control.hint = field.hint;
    control.items = itemsOf(field.entries);
    const double number = propertyNumber(graph, field.property);
    const auto* text = std::get_if<std::string Cls9::*>(&field.property);
    control.text = text ? graph.*(*text) : proposedText(number);
    control.on = field.kind == ControlKind::OptionButton ? number == field.value : number != 0;
    control.color = field.kind == ControlKind::ColorBox ? static_cast<base::PackedColor>(number) : 0;
    control.value = number;
    control.selected = control.items.empty() ? -1 : static_cast<int>(number) - field.value;
    return control;
}

bool store(const Field& field, Control& control, Cls9& graph, const platform::Desktop& desktop) {
    switch (field.kind) {
        case ControlKind::CheckBox:
            setNumber(graph, field.property, control.on ? 1 : 0);
            break;
        case ControlKind::OptionButton:
            if (control.on) setNumber(graph, field.property, field.value);
            break;
        case ControlKind::ComboBox:
        case ControlKind::ListBox:
            if (control.selected >= 0) setNumber(graph, field.property, control.selected + field.value);
            break;
        case ControlKind::ColorBox:
            setNumber(graph, field.property, control.color);
            break;
        case ControlKind::Slider:
            setNumber(graph, field.property, control.value);
            break;
        case ControlKind::TextBox:
            return !control.enabled || !control.visible || storeText(field, control, graph, desktop);
        default:
            break;
    }
    return true;
}

}  // namespace tessaplot::ui

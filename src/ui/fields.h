#pragma once

#include "graphs/surface_fill.h"
#include "ui/bound_field.h"

namespace tessaplot::ui::field {

// Short forms for the tables of bound controls.

constexpr Field option(std::string_view name, std::string_view caption, int graphs::Cls9::*property, int value) {
    return {ControlKind::OptionButton, name, caption, property, value};
}

constexpr Field check(std::string_view name, std::string_view caption, bool graphs::Cls9::*property) {
    return {ControlKind::CheckBox, name, caption, property};
}

constexpr Field colorBox(std::string_view name, std::string_view caption, int graphs::Cls9::*property,
                         std::string_view hint = {}) {
    return {ControlKind::ColorBox, name, caption, property, 0, Entries::None, NumberRule::Any, hint};
}

constexpr Field number(std::string_view name, std::string_view caption, double graphs::Cls9::*property, NumberRule rule,
                       std::string_view hint = {}) {
    return {ControlKind::TextBox, name, caption, property, 0, Entries::None, rule, hint};
}

constexpr Field sizes(std::string_view name, std::string_view caption, Property property) {
    return {ControlKind::ComboBox, name, caption, property, 1, Entries::Sizes};
}

constexpr Field materials(std::string_view name = "List1") {
    return {ControlKind::ListBox, name, "Select a material type", &graphs::Cls9::Material, 1, Entries::Materials};
}

constexpr Field scatteredPoints(std::string_view name) {
    return check(name, "Show The Points Of Irregular Data", &graphs::Cls9::ShowIrregData);
}

}  // namespace tessaplot::ui::field

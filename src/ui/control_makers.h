#pragma once

#include <string>
#include <utility>

#include "ui/form.h"

namespace tessaplot::ui {

// Short forms for the controls that dialogs make one by one.

inline Control label(std::string name, std::string caption) {
    return {.kind = ControlKind::Label, .name = std::move(name), .caption = std::move(caption)};
}

inline Control button(std::string name, std::string caption) {
    return {.kind = ControlKind::Button, .name = std::move(name), .caption = std::move(caption)};
}

inline Control checkBox(std::string name, std::string caption, bool on) {
    return {.kind = ControlKind::CheckBox, .name = std::move(name), .caption = std::move(caption), .on = on};
}

inline Control optionButton(std::string name, std::string caption, bool on) {
    return {.kind = ControlKind::OptionButton, .name = std::move(name), .caption = std::move(caption), .on = on};
}

inline Control textBox(std::string name, std::string caption, std::string text) {
    return {
        .kind = ControlKind::TextBox, .name = std::move(name), .caption = std::move(caption), .text = std::move(text)};
}

inline Control colorBox(std::string name, std::string caption, base::PackedColor color) {
    return {.kind = ControlKind::ColorBox, .name = std::move(name), .caption = std::move(caption), .color = color};
}

inline Control comboBox(std::string name, std::string caption, std::vector<Item> items, int selected) {
    return {.kind = ControlKind::ComboBox,
            .name = std::move(name),
            .caption = std::move(caption),
            .items = std::move(items),
            .selected = selected};
}

}  // namespace tessaplot::ui

#include "gl/known_state.h"

#include <algorithm>
#include <optional>

namespace tessaplot::gl {

bool KnownState::isRepeated(const Operation& operation) {
    const std::span<const double> n = operation.numbers;
    Setting setting{operation.op, 0, {}};
    switch (operation.op) {
        case Op::Enable:
            setting = {Op::Enable, n[0], {1, 0}};
            break;
        case Op::Disable:
            setting = {Op::Enable, n[0], {0, 0}};
            break;
        case Op::Hint:
            setting = {Op::Hint, n[0], {n[1], 0}};
            break;
        case Op::LineWidth:
        case Op::ShadeModel:
        case Op::DepthMask:
            setting.values = {n[0], 0};
            break;
        case Op::PolygonMode:
        case Op::PolygonOffset:
        case Op::BlendFunc:
        case Op::ColorMaterial:
            setting.values = {n[0], n[1]};
            break;
        default:
            return false;
    }
    const auto known = std::find_if(settings_.begin(), settings_.end(), [&setting](const Setting& other) {
        return other.op == setting.op && other.name == setting.name;
    });
    if (known == settings_.end()) {
        settings_.push_back(setting);
        return false;
    }
    if (*known == setting) return true;
    *known = setting;
    return false;
}

bool KnownState::isDisabled(GLenum capability) const {
    const Setting disabled{Op::Enable, static_cast<double>(capability), {0, 0}};
    return std::find(settings_.begin(), settings_.end(), disabled) != settings_.end();
}

}  // namespace tessaplot::gl

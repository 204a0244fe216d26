#pragma once

#include <span>
#include <string_view>

namespace tessaplot::ui {

/// One place of the toolbar: a button with its command and the hint of its menu entry, or a separator without.
struct ToolbarButton {
    int index = 0;  ///< From 1 on.
    std::string_view command = {};
    std::string_view hint = {};
};

inline constexpr int toolbarSize = 50;

/// All places of the toolbar from left to right.
std::span<const ToolbarButton> toolbar();

}  // namespace tessaplot::ui

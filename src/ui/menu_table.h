#pragma once

#include <span>
#include <string_view>

namespace tessaplot::ui {

/// One entry of the menu bar. A separator has neither name nor caption; a submenu's entries follow it with a greater
/// depth.
struct MenuEntry {
    int depth = 0;  ///< 0 stands on the bar itself.
    std::string_view name;
    std::string_view caption;
    std::string_view shortcut = {};  ///< In the portable form "Ctrl+O", empty for none.
    std::string_view hint = {};
};

/// The menu bar, from left to right and from top to bottom.
std::span<const MenuEntry> menuBar();

}  // namespace tessaplot::ui

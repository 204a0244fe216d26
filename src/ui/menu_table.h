#pragma once

#include <span>
#include <string_view>

namespace tessaplot::ui {

/// One entry of a menu. A separator has neither name nor caption; a submenu's entries follow it with a greater depth.
struct MenuEntry {
    int depth = 0;  ///< 0 stands on the bar, or in the popup menu itself.
    std::string_view name;
    std::string_view caption;
    std::string_view shortcut = {};  ///< In the portable form "Ctrl+O", empty for none.
    std::string_view hint = {};
};

/// The menu bar, from left to right and from top to bottom.
std::span<const MenuEntry> menuBar();

/// The hint for the status line of a command on the menu bar; empty for any other name.
std::string_view hintOf(std::string_view command);

/// The entries of a popup menu: "FunEdit" of the graph list, "GraphEdit" of the picture, "mnuGE" of the data grid,
/// whose shortcuts hold while the grid has the focus. Empty for any other name.
std::span<const MenuEntry> popupMenu(std::string_view name);

}  // namespace tessaplot::ui

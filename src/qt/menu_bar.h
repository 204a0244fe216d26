#pragma once

#include <QAction>
#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include "ui/menu_table.h"

class QMenu;
class QMenuBar;

namespace tessaplot::qt {

/// Takes the name of a command that was chosen.
using RunCommand = std::function<void(std::string_view)>;

/// Fill the menu bar or a popup menu from its table. Return the actions of the commands; each bears its command's name
/// as its object name and hands it to `run` when it is chosen.
std::vector<QAction*> fillMenuBar(QMenuBar& bar, std::span<const ui::MenuEntry> entries, const RunCommand& run);
std::vector<QAction*> fillPopupMenu(QMenu& popup, std::span<const ui::MenuEntry> entries, const RunCommand& run);

}  // namespace tessaplot::qt

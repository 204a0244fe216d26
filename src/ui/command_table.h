#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "ui/help_targets.h"

namespace tessaplot::ui {

class frmF1;

/// What every command does, by the names that menus and toolbar use.
struct CommandTable {
    using Handler = std::function<void(frmF1&)>;

    /// Null for a name that is no command.
    static const Handler* find(std::string_view command);

    /// The target that a command of the Help menu opens; null for all others.
    static std::string HelpTargets::*helpTarget(std::string_view command);

 private:
    using Handlers = std::unordered_map<std::string_view, Handler>;

    static const Handlers& handlers();
    static Handlers fileAndEdit();
    static Handlers viewAndProperties();
    static Handlers grid();
};

}  // namespace tessaplot::ui

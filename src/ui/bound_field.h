#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "graphs/graph.h"
#include "platform/desktop.h"
#include "ui/form.h"

namespace tessaplot::ui {

/// The property of a graph that a control stands for. Colours are integers.
using Property =
    std::variant<int graphs::Cls9::*, double graphs::Cls9::*, bool graphs::Cls9::*, std::string graphs::Cls9::*>;

/// What a combo or list box offers.
enum class Entries {
    None,
    Sizes,      ///< "1" to "8".
    Materials,  ///< The thirteen materials.
    Shapes,     ///< Points, lines, filled.
};

/// Which numbers a text box takes.
enum class NumberRule { Any, Positive };

/// A control bound to a property.
struct Field {
    ControlKind kind;
    std::string_view name;
    std::string_view caption;
    Property property;
    int value = 1;  ///< Of an option: what the property takes; of a list: what its first entry stands for.
    Entries entries = Entries::None;
    NumberRule rule = NumberRule::Any;
    std::string_view hint = {};
};

/// The control of a field, showing what the graph has.
Control controlFor(const Field& field, const graphs::Cls9& graph);

/// Takes what the user set into the graph; a text box that is disabled or hidden is not read. False, after a message,
/// for a text box that is empty or holds no number that the rule allows.
bool store(const Field& field, Control& control, graphs::Cls9& graph, const platform::Desktop& desktop);

}  // namespace tessaplot::ui

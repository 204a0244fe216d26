#pragma once

#include <bitset>
#include <cstddef>
#include <set>
#include <string_view>

#include "data/data_kind.h"
#include "ui/toolbar_table.h"

namespace tessaplot::ui {

/// Which menu entries and toolbar buttons are enabled. An entry and its button are told apart, as some rules touch only
/// one of the two.
class Enabling {
 public:
    void Enable2DCommands();
    void Enable3DCommands();
    void Enable4DCommands();
    /// The rules for a document of a mode; any other number changes nothing.
    void takeMode(int sceneMode);
    /// The rules for a kind of data.
    void takeKind(data::DataKind kind);

    bool entry(std::string_view command) const { return !disabledEntries_.contains(command); }
    /// Of the toolbar, from 1 to 50.
    bool button(int index) const { return !disabledButtons_[static_cast<std::size_t>(index)]; }

 private:
    void setEntry(std::string_view command, bool on);
    void setButton(int index, bool on) { disabledButtons_[static_cast<std::size_t>(index)] = !on; }
    /// `column` is that of the mode in the table of rules.
    void takeColumn(std::size_t column);

    std::set<std::string_view> disabledEntries_;
    std::bitset<toolbarSize + 1> disabledButtons_;
};

}  // namespace tessaplot::ui

#include "ui/menu_table.h"

#include <array>

namespace tessaplot::ui {

namespace {

constexpr std::array entries{
    MenuEntry{0, "mnuFile", "&File"},
    MenuEntry{1, "mnuFileNew", "&New"},
    MenuEntry{2, "mnuFileNew2D", "New &2D Graphs", "", "Create new 2D graphs"},
    MenuEntry{2, "mnuFileNew3D", "New &3D Graphs", "Ctrl+N", "Create new 3D graphs"},
    MenuEntry{2, "mnuFileNew4D", "New &4D Graphs", "", "Create new 4D graphs"},
    MenuEntry{1, "mnuFileOpen", "&Open...", "Ctrl+O", "Open file"},
    MenuEntry{1, "mnuFileSave", "&Save", "Ctrl+S", "Save file"},
    MenuEntry{1, "", ""},
    MenuEntry{1, "mnuFileExit", "E&xit", "Ctrl+Q", "Leave the program"},
    MenuEntry{0, "mnuView", "&View"},
    MenuEntry{1, "mnuViewFit", "Zoom to &Fit", "Ctrl+0", "Zoom to an appropriate size"},
    MenuEntry{1, "", ""},
    MenuEntry{1, "mnuViewFront", "F&ront", "Ctrl+1", "View from the front"},
    MenuEntry{1, "mnuViewRight", "Ri&ght", "Ctrl+2", "View from the right"},
    MenuEntry{1, "mnuViewTop", "&Top", "Ctrl+3", "View from the top"},
    MenuEntry{1, "mnuViewISO", "&ISO", "Ctrl+4", "View ISO"},
};

}  // namespace

std::span<const MenuEntry> menuBar() {
    return entries;
}

}  // namespace tessaplot::ui

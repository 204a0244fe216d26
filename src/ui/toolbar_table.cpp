#include "ui/toolbar_table.h"

#include <array>
#include <cstddef>

#include "ui/menu_table.h"

namespace tessaplot::ui {

namespace {

/// Where the button of a command stands.
struct ButtonPlace {
    int index;
    std::string_view command;
};

constexpr std::array buttons{
    ButtonPlace{2, "mnuFileNew2D"},    ButtonPlace{3, "mnuFileNew3D"},    ButtonPlace{4, "mnuFileNew4D"},
    ButtonPlace{6, "mnuFileOpen"},     ButtonPlace{7, "mnuFileSave"},     ButtonPlace{8, "mnuFileSaveAs"},
    ButtonPlace{10, "mnuFilePrint"},   ButtonPlace{12, "mnuEditCut"},     ButtonPlace{13, "mnuEditCopy"},
    ButtonPlace{14, "mnuEditCopyAs"},  ButtonPlace{15, "mnuEditPaste"},   ButtonPlace{16, "mnuEditDelete"},
    ButtonPlace{18, "mnuHelpCon"},     ButtonPlace{20, "mnuDrawPoint"},   ButtonPlace{22, "mnuDrawVert"},
    ButtonPlace{23, "mnuDrawGrid"},    ButtonPlace{24, "mnuDrawTab3D"},   ButtonPlace{25, "mnuDrawDelaunay"},
    ButtonPlace{27, "mnuDrawColor"},   ButtonPlace{28, "mnuDrawCon"},     ButtonPlace{29, "mnuDrawVector"},
    ButtonPlace{30, "mnuDrawCon3D"},   ButtonPlace{32, "mnuDraw4DScat"},  ButtonPlace{33, "mnuDraw4DVec"},
    ButtonPlace{34, "mnuDraw4DSlice"}, ButtonPlace{36, "mnuDrawAxis"},    ButtonPlace{37, "mnuDrawLight"},
    ButtonPlace{39, "mnuViewMove"},    ButtonPlace{40, "mnuViewZoom"},    ButtonPlace{41, "mnuViewFit"},
    ButtonPlace{42, "mnuViewRotateX"}, ButtonPlace{43, "mnuViewRotateY"}, ButtonPlace{44, "mnuViewRotateZ"},
    ButtonPlace{45, "mnuViewRotate"},  ButtonPlace{47, "mnuViewFront"},   ButtonPlace{48, "mnuViewRight"},
    ButtonPlace{49, "mnuViewTop"},     ButtonPlace{50, "mnuViewISO"},
};

std::array<ToolbarButton, toolbarSize> withSeparators() {
    std::array<ToolbarButton, toolbarSize> places{};
    for (std::size_t i = 0; i < places.size(); ++i)
        places[i].index = static_cast<int>(i) + 1;
    for (const ButtonPlace& button : buttons)
        places[static_cast<std::size_t>(button.index) - 1] = {button.index, button.command, hintOf(button.command)};
    return places;
}

}  // namespace

std::span<const ToolbarButton> toolbar() {
    static const std::array<ToolbarButton, toolbarSize> places = withSeparators();
    return places;
}

}  // namespace tessaplot::ui

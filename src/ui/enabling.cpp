#include "ui/enabling.h"

#include <array>

#include "scene/scene_state.h"

namespace tessaplot::ui {

namespace {

constexpr int noButton = 0;

/// One entry, one button, or both, and whether they are enabled in 2D, 3D and 4D.
struct ModeRule {
    std::string_view command;  ///< Empty for a rule of the button alone.
    int button;
    std::array<bool, 3> enabled;
};

constexpr std::array<bool, 3> never2D{false, true, true};
constexpr std::array<bool, 3> only2D{true, false, false};
constexpr std::array<bool, 3> only3D{false, true, false};
constexpr std::array<bool, 3> only4D{false, false, true};
constexpr std::array<bool, 3> always{true, true, true};

/// The entry of the Delaunay triangles is left out and its button is not; the iso-surface has no button.
constexpr std::array modeRules{
    ModeRule{"mnuViewRotate", 45, never2D},
    ModeRule{"mnuViewRotateX", 42, never2D},
    ModeRule{"mnuViewRotateY", 43, never2D},
    ModeRule{"mnuViewRotateZ", 44, never2D},
    ModeRule{"mnuViewFront", 47, never2D},
    ModeRule{"mnuViewRight", 48, never2D},
    ModeRule{"mnuViewTop", 49, never2D},
    ModeRule{"mnuViewISO", 50, never2D},
    ModeRule{"mnuDrawVert", 22, only3D},
    ModeRule{"mnuDrawGrid", 23, only3D},
    ModeRule{"mnuDrawTab3D", 24, only3D},
    ModeRule{"", 25, only3D},
    ModeRule{"mnuDrawCon3D", 30, only3D},
    ModeRule{"mnuDrawColor", 27, only2D},
    ModeRule{"mnuDrawCon", 28, only2D},
    ModeRule{"mnuDrawVector", 29, only2D},
    ModeRule{"mnuDraw4DScat", 32, only4D},
    ModeRule{"mnuDraw4DVec", 33, only4D},
    ModeRule{"mnuDraw4DSlice", 34, only4D},
    ModeRule{"mnuDrawIsoSur", noButton, only4D},
    ModeRule{"mnuDrawLight", 37, never2D},
    ModeRule{"", 36, always},
    ModeRule{"", 39, always},
    ModeRule{"", 40, always},
    ModeRule{"", 41, always},
};

constexpr int button2D = 2;
constexpr int button4D = 4;

}  // namespace

void Enabling::Enable2DCommands() {
    takeColumn(0);
}

void Enabling::Enable3DCommands() {
    takeColumn(1);
}

void Enabling::Enable4DCommands() {
    takeColumn(2);
}

void Enabling::takeMode(int sceneMode) {
    if (sceneMode == scene::mode2D) Enable2DCommands();
    if (sceneMode == scene::mode3D) Enable3DCommands();
    if (sceneMode == scene::mode4D) Enable4DCommands();
}

void Enabling::takeColumn(std::size_t column) {
    for (const ModeRule& rule : modeRules) {
        if (!rule.command.empty()) setEntry(rule.command, rule.enabled[column]);
        if (rule.button != noButton) setButton(rule.button, rule.enabled[column]);
    }
}

void Enabling::takeKind(data::DataKind kind) {
    const bool cartesian = !data::isCurvilinear(kind);
    setEntry("mnuFileNew2D", cartesian);
    setEntry("mnuFileNew4D", cartesian);
    setButton(button2D, cartesian);
    setButton(button4D, cartesian);
    setEntry("mnuFileGridded", data::isIrregular(kind));
    if (cartesian) return;
    // Cartesian kinds do not turn these two back.
    setEntry("mnuDrawDelaunay", false);
    setEntry("mnuDrawCon3D", true);
}

void Enabling::setEntry(std::string_view command, bool on) {
    if (on)
        disabledEntries_.erase(command);
    else
        disabledEntries_.insert(command);
}

}  // namespace tessaplot::ui

#pragma once

#include <array>
#include <string_view>

#include "core/app_state.h"
#include "scene/trackball.h"

namespace tessaplot::ui {

/// The values by which a mouse button is named; a state of several is their sum.
namespace mouse_button {
inline constexpr int left = 1;
inline constexpr int right = 2;
inline constexpr int middle = 4;
}  // namespace mouse_button

/// The pointer on the picture: where it is and how large the picture is, in one unit, y running downward.
struct PointerPlace {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
};

/// The commands that choose what a left drag does.
inline constexpr std::array<std::string_view, 6> dragCommands{"mnuViewMove",    "mnuViewZoom",    "mnuViewRotate",
                                                              "mnuViewRotateX", "mnuViewRotateY", "mnuViewRotateZ"};

/// What the mouse does to the scene: drags that zoom, pan and turn it, and the spin that goes on after a turn.
class Mouse {
 public:
    explicit Mouse(core::AppState& state);

    /// The modes of a left drag; at most one of the three is on.
    bool ZoomMode = false;
    bool MoveMode = false;
    bool RotateOn = false;
    bool AnglesSet = false;  ///< A standard view was chosen since the mode.
    bool StopSpin = false;   ///< The window goes; nothing spins any more.
    double LastX = 0;
    double LastY = 0;
    double ZoomFactor = 1;
    scene::Quaternion LastQuat{0, 0, 0, 1};  ///< The last increment of a turn.

    void chooseZoom();
    void chooseMove();
    void chooseRotate(scene::RotateMode mode);
    void clearModes();
    /// The command whose mode a left drag is in; empty for none.
    std::string_view dragCommand() const;

    /// The left button stops a spin and redraws at full quality, the right one asks for the menu of the picture.
    void down(int button, const PointerPlace& at);
    /// `buttons` is the state of all buttons: only the left one alone drags.
    void move(int buttons, const PointerPlace& at);
    void up();

    /// True while each idle turn of the event loop is to make one `idleStep`.
    bool wantsIdle() const;
    void idleStep();

 private:
    void zoom(const PointerPlace& at);
    void rotate(const PointerPlace& at);
    void pan(const PointerPlace& at);
    void stepRotation();
    void remember(const PointerPlace& at);

    core::AppState& state_;
    bool idling_ = false;  ///< A button was released once: idle turns count from then on.
};

}  // namespace tessaplot::ui

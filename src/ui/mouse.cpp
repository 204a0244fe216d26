#include "ui/mouse.h"

#include "core/refresh.h"

namespace tessaplot::ui {

Mouse::Mouse(core::AppState& state) : state_(state) {}

void Mouse::clearModes() {
    ZoomMode = false;
    MoveMode = false;
    RotateOn = false;
}

void Mouse::chooseZoom() {
    clearModes();
    ZoomMode = true;
    AnglesSet = false;
}

void Mouse::chooseMove() {
    clearModes();
    MoveMode = true;
    AnglesSet = false;
}

void Mouse::chooseRotate(scene::RotateMode mode) {
    clearModes();
    RotateOn = true;
    AnglesSet = false;
    state_.RotateMode = mode;
}

void Mouse::remember(const PointerPlace& at) {
    LastX = at.x;
    LastY = at.y;
}

std::string_view Mouse::dragCommand() const {
    if (MoveMode) return "mnuViewMove";
    if (ZoomMode) return "mnuViewZoom";
    if (!RotateOn) return {};
    switch (state_.RotateMode) {
        case scene::RotateMode::AboutX:
            return "mnuViewRotateX";
        case scene::RotateMode::AboutY:
            return "mnuViewRotateY";
        case scene::RotateMode::AboutZ:
            return "mnuViewRotateZ";
        default:
            return "mnuViewRotate";
    }
}

void Mouse::down(int button, const PointerPlace& at) {
    if (button == mouse_button::left) {
        remember(at);
        state_.QuickDraw = false;
        core::rebuildForCamera(state_);
    }
    if (button == mouse_button::right) state_.desktop.showPopUp("GraphEdit");
}

void Mouse::move(int buttons, const PointerPlace& at) {
    // A picture without an extent gives a drag no measure.
    if (buttons != mouse_button::left || !(at.width > 0) || !(at.height > 0)) return;
    if (ZoomMode)
        zoom(at);
    else if (RotateOn)
        rotate(at);
    else if (MoveMode)
        pan(at);
}

void Mouse::zoom(const PointerPlace& at) {
    ZoomFactor = 1 - (LastY - at.y) / at.height;
    remember(at);
    state_.TheView.Zoom(ZoomFactor);
    state_.QuickDraw = true;
    core::rebuildForCamera(state_);
}

void Mouse::rotate(const PointerPlace& at) {
    const double x1 = (2 * LastX - at.width) / at.width;
    const double y1 = (at.height - 2 * LastY) / at.height;
    const double x2 = (2 * at.x - at.width) / at.width;
    const double y2 = (at.height - 2 * at.y) / at.height;
    LastQuat = scene::Trackball(state_.RotateMode, x1, y1, x2, y2);
    state_.UseQuat = true;
    state_.QuickDraw = true;
    stepRotation();
    remember(at);
}

void Mouse::pan(const PointerPlace& at) {
    const double dx = (at.x - LastX) / at.width;
    const double dy = (LastY - at.y) / at.height;
    state_.TheView.MoveView(dx, dy);
    remember(at);
    state_.QuickDraw = true;
    core::rebuildForCamera(state_);
}

void Mouse::stepRotation() {
    state_.CurQuat = scene::AddQuats(LastQuat, state_.CurQuat);
    core::rebuildForCamera(state_);
}

void Mouse::up() {
    if (ZoomMode || MoveMode) {
        state_.QuickDraw = false;
        core::rebuildForCamera(state_);
    }
    idling_ = true;
}

bool Mouse::wantsIdle() const {
    // A scene that stands by its angles would be drawn as it is, again and again.
    return idling_ && state_.QuickDraw && state_.UseQuat && !StopSpin;
}

void Mouse::idleStep() {
    if (wantsIdle()) stepRotation();
}

}  // namespace tessaplot::ui

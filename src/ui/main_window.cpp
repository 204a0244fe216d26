#include "ui/main_window.h"

#include "base/failure.h"
#include "core/graph_list.h"
#include "core/refresh.h"
#include "ui/command_table.h"
#include "ui/failure_text.h"
#include "ui/toolbar_table.h"

namespace tessaplot::ui {

namespace {

/// Empty for a separator and for numbers off the toolbar.
std::string_view commandOfButton(int index) {
    const auto places = toolbar();
    if (index < 1 || index > static_cast<int>(places.size())) return {};
    return places[static_cast<std::size_t>(index) - 1].command;
}

}  // namespace

frmF1::frmF1(core::AppState& state) : state_(state), mouse_(state) {
    enabling_.takeMode(state.scene.SceneMode);
    enabling_.takeKind(state.panel.kind());
}

void frmF1::load(const std::filesystem::path& path) {
    state_.TheAxis.Show = true;
    state_.TheData.DataDim = 1;
    if (state_.desktop.registerFileType) state_.desktop.registerFileType();
    if (path.empty()) {
        mnuFileNew3D_Click();
        return;
    }
    core::RebuildScene(state_);
    try {
        openDocument(path);
    } catch (const base::Failure& failure) {
        if (failure.code() == base::FailureCode::FileUnreadable) throw;
        // The table is there to be mended.
        showFailure(failure);
    }
}

void frmF1::run(std::string_view command) {
    if (isEnabled(command)) carryOut(command);
}

void frmF1::carryOut(std::string_view command) {
    if (const CommandTable::Handler* handler = CommandTable::find(command)) guarded([&] { (*handler)(*this); });
}

bool frmF1::isEnabled(std::string_view command) const {
    return enabling_.entry(command) && !lacksTarget(command);
}

bool frmF1::lacksTarget(std::string_view command) const {
    const auto target = CommandTable::helpTarget(command);
    return target != nullptr && (help.*target).empty();
}

void frmF1::Toolbar1_ButtonClick(int index) {
    if (isButtonEnabled(index)) carryOut(commandOfButton(index));
}

bool frmF1::isButtonEnabled(int index) const {
    const std::string_view command = commandOfButton(index);
    return !command.empty() && enabling_.button(index) && !lacksTarget(command);
}

void frmF1::List1_Tick(int entry, bool ticked) {
    guarded([&] { core::setTick(state_, entry, ticked); });
}

void frmF1::List1_Select(int entry) {
    state_.List1.selected = entry;
}

void frmF1::List1_RightClick() {
    state_.desktop.showPopUp("FunEdit");
}

void frmF1::mouseDown(int button, double x, double y, double W, double H) {
    guarded([&] { mouse_.down(button, {x, y, W, H}); });
}

void frmF1::mouseMove(int buttons, double x, double y, double W, double H) {
    guarded([&] { mouse_.move(buttons, {x, y, W, H}); });
}

void frmF1::mouseUp() {
    guarded([this] { mouse_.up(); });
}

bool frmF1::wantsIdle() const {
    return running_ == 0 && mouse_.wantsIdle();
}

void frmF1::idleStep() {
    if (!wantsIdle()) return;
    // One box is enough for a scene that cannot be turned on.
    if (!guarded([this] { mouse_.idleStep(); })) state_.QuickDraw = false;
}

void frmF1::resizePicture(int width, int height) {
    int shownHeight = height;
    state_.TheView.SetScreen(width, shownHeight);
    core::RebuildScene(state_, core::SceneChange::Camera);
}

void frmF1::setStandardView(double roll, double pitch, double yaw) {
    state_.ShownGraphs.setAngles(roll, pitch, yaw);
    mouse_.AnglesSet = true;
    state_.UseQuat = false;
    core::rebuildForCamera(state_);
}

void frmF1::showFailure(const std::exception& failure) const {
    if (isCancelled(failure))
        state_.desktop.status(failure.what());
    else
        state_.desktop.askUser({"Tessaplot", failureText(failure), platform::Icon::Error});
}

}  // namespace tessaplot::ui

#include <array>
#include <chrono>
#include <ctime>
#include <system_error>

#include "core/document.h"
#include "core/graph_list.h"
#include "ui/main_window.h"

namespace tessaplot::ui {

using platform::Answer;
using platform::Buttons;
using platform::FileQuestion;
using platform::Icon;

namespace {

std::string timeStamp() {
    const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    std::tm local{};
    localtime_r(&now, &local);
    std::array<char, 32> text{};
    std::strftime(text.data(), text.size(), "%Y%m%d-%H%M%S", &local);
    return text.data();
}

}  // namespace

void frmF1::mnuFileSave_Click() {
    SaveDone = true;
    saveFailure_.clear();
    if (state_.AllGraphs.empty()) return;
    const auto chosen = state_.desktop.chooseFileName({FileQuestion::Mode::Save, "Save", "(*.tsp)|*.tsp"});
    SaveDone = chosen.has_value();
    if (chosen) saveAs(chosen->path);
}

void frmF1::mnuFileSaveAs_Click() {
    constexpr int pictureFilter = 2;
    SaveDone = true;
    saveFailure_.clear();
    state_.desktop.displayPicture();
    const auto chosen = state_.desktop.chooseFileName({FileQuestion::Mode::Save, "Save As", "*.tsp|*.tsp|*.bmp|*.bmp"});
    SaveDone = chosen.has_value();
    if (!chosen) return;
    if (chosen->filterIndex == pictureFilter)
        savePictureAs(chosen->path);
    else
        saveAs(chosen->path);
}

void frmF1::saveAs(const std::filesystem::path& path) {
    save(path, [&] {
        core::writeDocumentFile(path, core::documentText(core::partsOf(state_, state_.ShownGraphs)));
        if (state_.desktop.registerFileType) state_.desktop.registerFileType();
    });
}

void frmF1::save(const std::filesystem::path& path, const std::function<void()>& write) {
    try {
        write();
        state_.desktop.status("Saved \"" + path.string() + "\".");
    } catch (const std::exception& failure) {
        SaveDone = false;
        saveFailure_ = failure.what();
        state_.desktop.status(saveFailure_);
    }
}

Answer frmF1::askToSaveChanges() const {
    return state_.desktop.askUser({"Note", "Save changes to the file?", Icon::None, Buttons::YesNoCancel});
}

bool frmF1::saveAndClear() {
    mnuFileSave_Click();
    if (!SaveDone) return false;
    core::DeleteAllGraphs(state_);
    SaveDone = false;
    return true;
}

void frmF1::mnuFileExit_Click() {
    if (state_.desktop.closeWindow) state_.desktop.closeWindow();
}

void frmF1::unload() {
    state_.QuickDraw = false;
    mouse_.StopSpin = true;
    if (state_.AllGraphs.empty()) return;
    // The status line goes with the window, so a save that fails here is told in a box. It is offered again, and so is
    // one for which no file was chosen after all.
    while (state_.desktop.askUser({"Note", "Do you want to save the graphs?", Icon::Warning, Buttons::YesNo}) ==
           Answer::Yes) {
        mnuFileSave_Click();
        if (SaveDone) return;
        if (!saveFailure_.empty()) state_.desktop.askUser({"Tessaplot", saveFailure_, Icon::Error});
    }
}

std::filesystem::path frmF1::saveRecovery(const std::filesystem::path& folder) const {
    try {
        std::error_code ignored;  // A folder that cannot be made shows in the failure to write there.
        std::filesystem::create_directories(folder, ignored);
        std::filesystem::path path = folder / ("recovery-" + timeStamp() + ".tsp");
        core::writeDocumentFile(path, core::documentText(core::partsOf(state_, state_.AllGraphs)));
        return path;
    } catch (const std::exception&) {
        return {};
    }
}

}  // namespace tessaplot::ui

#include <array>
#include <chrono>
#include <ctime>
#include <system_error>

#include "base/failure.h"
#include "core/document.h"
#include "core/graph_list.h"
#include "core/refresh.h"
#include "ui/main_window.h"

namespace tessaplot::ui {

namespace {

using platform::Answer;
using platform::Buttons;
using platform::FileQuestion;
using platform::Icon;

constexpr float spatialLight = 1000;
constexpr float flatLight = 0;

void placeLight(core::AppState& state, float position) {
    state.TheLight.Position[0] = position;
    state.TheLight.Position[1] = position;
}

std::string timeStamp() {
    const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    std::tm local{};
    localtime_r(&now, &local);
    std::array<char, 32> text{};
    std::strftime(text.data(), text.size(), "%Y%m%d-%H%M%S", &local);
    return text.data();
}

}  // namespace

void frmF1::openDocument(const std::filesystem::path& path) {
    const int modeBefore = state_.scene.SceneMode;
    try {
        const core::LoadResult result = core::LoadDocument(state_, path);
        if (result == core::LoadResult::Loaded) enableForDocument();
        if (result == core::LoadResult::EmptyFile) state_.desktop.status("The file is empty.");
        if (result == core::LoadResult::UnknownTag) state_.desktop.status("The file holds no known kind of document.");
    } catch (...) {
        if (state_.scene.SceneMode != modeBefore) enableForDocument();
        enabling_.takeKind(state_.panel.kind());
        throw;
    }
}

void frmF1::enableForDocument() {
    enabling_.takeMode(state_.scene.SceneMode);
    enabling_.takeKind(state_.panel.kind());
}

void frmF1::openDemo(std::string_view fileName) {
    state_.FitOnRefresh = true;
    try {
        openDocument(state_.samplesFolder / fileName);
    } catch (...) {
        state_.FitOnRefresh = false;
        throw;
    }
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

void frmF1::mnuFileNew2D_Click() {
    setStandardView(0, -30, 45);
    placeLight(state_, flatLight);
    state_.ShownGraphs.setAngles(0, 0, 0);
    mouse_.clearModes();
    state_.scene.SceneMode = scene::mode2D;
    state_.TheAxis.BetterFonts = true;
    if (!state_.AllGraphs.empty()) {
        const Answer answer = askToSaveChanges();
        if (answer == Answer::Yes) saveAndClear();
        if (answer == Answer::No) core::DeleteAllGraphs(state_);
    }
    state_.LastGraphId = 0;
    enabling_.Enable2DCommands();
    core::RebuildScene(state_);
    state_.desktop.displayPicture();
}

void frmF1::mnuFileNew3D_Click() {
    newSpatialDocument(scene::mode3D);
}

void frmF1::mnuFileNew4D_Click() {
    newSpatialDocument(scene::mode4D);
}

void frmF1::newSpatialDocument(int sceneMode) {
    if (!state_.AllGraphs.empty()) {
        const Answer answer = askToSaveChanges();
        if (answer == Answer::Cancel) return;
        if (answer == Answer::Yes && !saveAndClear()) return;
    }
    startSpatialDocument(sceneMode);
}

void frmF1::startSpatialDocument(int sceneMode) {
    placeLight(state_, spatialLight);
    state_.ShownGraphs.setAngles(0, -30, 45);
    state_.UseQuat = false;
    mouse_.clearModes();
    state_.scene.SceneMode = sceneMode;
    state_.TheAxis.BetterFonts = true;
    core::DeleteAllGraphs(state_);
    state_.TheAxis.SetDefault();
    state_.LastGraphId = 0;
    enabling_.takeMode(sceneMode);
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

void frmF1::mnuFileOpen_Click() {
    mouse_.clearModes();
    if (!state_.ShownGraphs.empty()) {
        const Answer answer =
            state_.desktop.askUser({"Note", "Do you want to save the graphs?", Icon::None, Buttons::YesNoCancel});
        if (answer == Answer::Cancel) return;
        if (answer == Answer::Yes) mnuFileSave_Click();
    }
    state_.LastGraphId = 0;
    const auto chosen = state_.desktop.chooseFileName({FileQuestion::Mode::Open, "Open File", "(*.tsp)|*.tsp"});
    if (chosen) openDocument(chosen->path);
}

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

void frmF1::mnuFileExit_Click() {
    if (state_.desktop.closeWindow) state_.desktop.closeWindow();
}

}  // namespace tessaplot::ui

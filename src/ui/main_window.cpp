#include "ui/main_window.h"

#include <array>
#include <chrono>
#include <ctime>
#include <new>
#include <system_error>

#include "base/failure.h"
#include "core/graph_list.h"
#include "core/refresh.h"

namespace tessaplot::ui {

namespace {

using platform::Answer;
using platform::Buttons;
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

frmF1::frmF1(core::AppState& state) : state_(state) {}

void frmF1::load(const std::filesystem::path& path) {
    state_.TheAxis.Show = true;
    state_.TheData.DataDim = 1;
    if (state_.desktop.registerFileType) state_.desktop.registerFileType();
    if (path.empty()) {
        mnuFileNew3D_Click();
        return;
    }
    core::RebuildScene(state_);
    openDocument(path);
}

void frmF1::openDocument(const std::filesystem::path& path) {
    switch (core::LoadDocument(state_, path)) {
        case core::LoadResult::Loaded:
        case core::LoadResult::NoPath:
            break;
        case core::LoadResult::EmptyFile:
            state_.desktop.status("The file is empty.");
            break;
        case core::LoadResult::UnknownTag:
            state_.desktop.status("The file holds no known kind of document.");
            break;
    }
}

void frmF1::run(std::string_view command) {
    struct Handler {
        std::string_view command;
        void (*run)(frmF1&);
    };
    static constexpr std::array handlers{
        Handler{"mnuFileNew2D", [](frmF1& window) { window.mnuFileNew2D_Click(); }},
        Handler{"mnuFileNew3D", [](frmF1& window) { window.mnuFileNew3D_Click(); }},
        Handler{"mnuFileNew4D", [](frmF1& window) { window.mnuFileNew4D_Click(); }},
        Handler{"mnuFileOpen", [](frmF1& window) { window.mnuFileOpen_Click(); }},
        Handler{"mnuFileSave", [](frmF1& window) { window.mnuFileSave_Click(); }},
        Handler{"mnuFileExit", [](frmF1& window) { window.mnuFileExit_Click(); }},
        Handler{"mnuViewFit", [](frmF1& window) { core::fitView(window.state_); }},
        Handler{"mnuViewFront", [](frmF1& window) { window.setStandardView(0, 0, 0); }},
        Handler{"mnuViewISO", [](frmF1& window) { window.setStandardView(0, -30, 45); }},
        Handler{"mnuViewRight", [](frmF1& window) { window.setStandardView(0, 0, 90); }},
        Handler{"mnuViewTop", [](frmF1& window) { window.setStandardView(0, -90, 0); }},
    };
    for (const Handler& handler : handlers)
        if (handler.command == command && isEnabled(command)) guarded([&] { handler.run(*this); });
}

bool frmF1::isEnabled(std::string_view command) const {
    if (command == "mnuFileNew2D" || command == "mnuFileNew4D") return !data::isCurvilinear(state_.panel.kind());
    const bool turnsScene =
        command == "mnuViewFront" || command == "mnuViewISO" || command == "mnuViewRight" || command == "mnuViewTop";
    return !turnsScene || state_.scene.SceneMode != scene::mode2D;
}

void frmF1::Command1_Click() {
    guarded([this] { state_.panel.layOut(); });
}

void frmF1::Combo1_Click(int kind) {
    if (kind >= 0 && kind < data::dataKindCount) state_.panel.selectKind(static_cast<data::DataKind>(kind));
}

void frmF1::List1_Tick(int entry, bool ticked) {
    guarded([&] { core::setTick(state_, entry, ticked); });
}

void frmF1::List1_Select(int entry) {
    state_.List1.selected = entry;
}

void frmF1::resizePicture(int width, int height) {
    int shownHeight = height;
    state_.TheView.SetScreen(width, shownHeight);
    core::RebuildScene(state_, core::SceneChange::Camera);
}

void frmF1::unload() {
    state_.QuickDraw = false;
    if (state_.AllGraphs.empty()) return;
    // The status line goes with the window, so a save that fails here is told in a box and offered again.
    while (state_.desktop.askUser({"Note", "Do you want to save the graphs?", Icon::Warning, Buttons::YesNo}) ==
           Answer::Yes) {
        mnuFileSave_Click();
        if (saveFailure_.empty()) return;
        state_.desktop.askUser({"Tessaplot", saveFailure_, Icon::Error});
    }
}

std::filesystem::path frmF1::saveRecovery(const std::filesystem::path& folder) const {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    std::filesystem::path path = folder / ("recovery-" + timeStamp() + ".tsp");
    try {
        core::writeDocumentFile(path, core::documentText(core::partsOf(state_, state_.AllGraphs)));
    } catch (const std::exception&) {
        return {};
    }
    return path;
}

void frmF1::mnuFileNew2D_Click() {
    setStandardView(0, -30, 45);
    placeLight(state_, flatLight);
    state_.ShownGraphs.setAngles(0, 0, 0);
    state_.scene.SceneMode = scene::mode2D;
    state_.TheAxis.BetterFonts = true;
    if (!state_.AllGraphs.empty()) {
        const Answer answer = askToSaveChanges();
        if (answer == Answer::Yes) saveAndClear();
        if (answer == Answer::No) core::DeleteAllGraphs(state_);
    }
    state_.LastGraphId = 0;
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
    state_.scene.SceneMode = sceneMode;
    state_.TheAxis.BetterFonts = true;
    core::DeleteAllGraphs(state_);
    state_.TheAxis.SetDefault();
    state_.LastGraphId = 0;
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
    if (!state_.ShownGraphs.empty()) {
        const Answer answer =
            state_.desktop.askUser({"Note", "Do you want to save the graphs?", Icon::None, Buttons::YesNoCancel});
        if (answer == Answer::Cancel) return;
        if (answer == Answer::Yes) mnuFileSave_Click();
    }
    state_.LastGraphId = 0;
    const auto chosen =
        state_.desktop.chooseFileName({platform::FileQuestion::Mode::Open, "Open File", "(*.tsp)|*.tsp"});
    if (chosen) openDocument(chosen->path);
}

void frmF1::mnuFileSave_Click() {
    SaveDone = true;
    saveFailure_.clear();
    if (state_.AllGraphs.empty()) return;
    const auto chosen = state_.desktop.chooseFileName({platform::FileQuestion::Mode::Save, "Save", "(*.tsp)|*.tsp"});
    SaveDone = chosen.has_value();
    if (chosen) saveAs(chosen->path);
}

void frmF1::saveAs(const std::filesystem::path& path) {
    try {
        core::writeDocumentFile(path, core::documentText(core::partsOf(state_, state_.ShownGraphs)));
        if (state_.desktop.registerFileType) state_.desktop.registerFileType();
        state_.desktop.status("Saved \"" + path.string() + "\".");
    } catch (const base::Failure& failure) {
        SaveDone = false;
        saveFailure_ = failure.what();
        state_.desktop.status(saveFailure_);
    }
}

void frmF1::mnuFileExit_Click() {
    if (state_.desktop.closeWindow) state_.desktop.closeWindow();
}

void frmF1::setStandardView(double roll, double pitch, double yaw) {
    state_.ShownGraphs.setAngles(roll, pitch, yaw);
    state_.UseQuat = false;
    core::rebuildForCamera(state_);
}

void frmF1::showFailure(const std::exception& failure) const {
    const bool memory = dynamic_cast<const std::bad_alloc*>(&failure) != nullptr;
    state_.desktop.askUser(
        {"Tessaplot", memory ? "There is not enough memory for this." : failure.what(), Icon::Error});
}

}  // namespace tessaplot::ui

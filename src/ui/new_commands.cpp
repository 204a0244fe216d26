#include "core/graph_list.h"
#include "core/refresh.h"
#include "ui/main_window.h"

namespace tessaplot::ui {

using platform::Answer;

namespace {

constexpr float spatialLight = 1000;
constexpr float flatLight = 0;

void placeLight(core::AppState& state, float position) {
    state.TheLight.Position[0] = position;
    state.TheLight.Position[1] = position;
}

}  // namespace

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

}  // namespace tessaplot::ui

#include "ui/main_window.h"

namespace tessaplot::ui {

using platform::Answer;
using platform::Buttons;
using platform::FileQuestion;
using platform::Icon;

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

}  // namespace tessaplot::ui

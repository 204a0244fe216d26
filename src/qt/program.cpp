#include "qt/program.h"

#include <QScopeGuard>
#include <exception>
#include <utility>

#include "core/app_state.h"
#include "qt/application.h"
#include "qt/desktop.h"
#include "qt/installation.h"
#include "qt/last_resort.h"
#include "qt/main_window.h"
#include "ui/main_window.h"

namespace tessaplot::qt {

namespace {

/// A document whose graphs cannot be drawn stays open; one that cannot be read leaves nothing to go on with.
bool open(MainWindow& window, const core::AppState& state, const std::filesystem::path& document) {
    try {
        window.start(document);
    } catch (const std::exception& failure) {
        state.desktop.askUser({"Tessaplot", failure.what(), platform::Icon::Error});
        return !state.AllGraphs.empty();
    }
    return true;
}

}  // namespace

int runProgram(Application& application, const std::filesystem::path& document,
               std::shared_ptr<core::DocumentAhead> ahead) {
    const Installation installation = findInstallation();
    core::AppState state;
    state.documentAhead = std::move(ahead);
    state.samplesFolder = installation.samples;
    ui::frmF1 form(state);
    form.help = installation.help;
    MainWindow window(form);
    state.desktop = makeDesktop(window);

    LastResort lastResort(form, userDataFolder());
    application.setLastResort([&](const char* message) {
        window.stopRun();
        lastResort.take(message);
    });
    const auto forget = qScopeGuard([&] { application.setLastResort({}); });

    // A box at the start may already have let a failure run its course, and the loop below would not know of it.
    if (!open(window, state, document) || lastResort.ended()) return 1;
    const int status = application.exec();
    return lastResort.taken() ? 1 : status;
}

}  // namespace tessaplot::qt

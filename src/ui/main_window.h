#pragma once

#include <exception>
#include <filesystem>
#include <string>
#include <string_view>

#include "core/app_state.h"
#include "core/document.h"

namespace tessaplot::ui {

/// The main window without its widgets: every command, what is enabled, and what a failure does.
class frmF1 {
 public:
    explicit frmF1(core::AppState& state);

    core::AppState& state() { return state_; }

    /// What happens at the start, once the picture exists: defaults, the file type, then the document at `path` or a
    /// new 3D document if it is empty. Throws a Failure for a document that cannot be read.
    void load(const std::filesystem::path& path);

    /// Runs the command of a menu entry by name. A failure is shown in the error box; the document stays.
    void run(std::string_view command);
    bool isEnabled(std::string_view command) const;

    /// Runs any other action of the user in the same way as a command; true if it did not fail.
    template <class Action>
    bool guarded(Action&& action);

    /// The user's actions on the data panel and the graph list.
    void Command1_Click();
    void Combo1_Click(int kind);
    void List1_Tick(int entry, bool ticked);
    void List1_Select(int entry);
    /// The size of the picture in physical pixels has changed.
    void resizePicture(int width, int height);

    /// The window was asked to close: offers to save, then it may go.
    void unload();

    /// Keeps all that is open in a recovery document and returns its path; empty if even that failed.
    std::filesystem::path saveRecovery(const std::filesystem::path& folder) const;

    bool SaveDone = false;

 private:
    void mnuFileNew2D_Click();
    void mnuFileNew3D_Click();
    void mnuFileNew4D_Click();
    void mnuFileOpen_Click();
    void mnuFileSave_Click();
    void mnuFileExit_Click();
    void mnuViewFit_Click();
    void openDocument(const std::filesystem::path& path);
    void newSpatialDocument(int sceneMode);
    void startSpatialDocument(int sceneMode);
    platform::Answer askToSaveChanges() const;
    /// Saves and, once that is done, deletes all graphs; false if the document stays.
    bool saveAndClear();
    void saveAs(const std::filesystem::path& path);
    void setStandardView(double roll, double pitch, double yaw);
    void showFailure(const std::exception& failure) const;

    core::AppState& state_;
    std::string saveFailure_;  ///< Why the last save could not be written; empty if it was, or was cancelled.
};

template <class Action>
bool frmF1::guarded(Action&& action) {
    try {
        action();
        return true;
    } catch (const std::exception& failure) {
        showFailure(failure);
        return false;
    }
}

}  // namespace tessaplot::ui

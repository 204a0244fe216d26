#pragma once

#include <exception>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "core/app_state.h"
#include "core/document.h"
#include "data/grid_editing.h"
#include "ui/enabling.h"
#include "ui/form.h"
#include "ui/help_targets.h"
#include "ui/mouse.h"

namespace tessaplot::ui {

/// The main window without its widgets: every command, what is enabled, the mouse, and what a failure does.
class frmF1 {
 public:
    explicit frmF1(core::AppState& state);

    core::AppState& state() { return state_; }

    /// Shows a dialog until it is closed. Without one, dialogs are accepted as they open.
    std::function<void(Form&)> showForm;
    HelpTargets help;

    /// What happens at the start, once the picture exists: defaults, the file type, then the document at `path` or a
    /// new 3D document if it is empty. Throws FileUnreadable for a file that cannot be read; any other failure is shown
    /// and leaves what was read.
    void load(const std::filesystem::path& path);

    /// Runs the command of a menu entry or popup entry by name, if it is enabled. A failure is shown in the error box;
    /// the document stays.
    void run(std::string_view command);
    bool isEnabled(std::string_view command) const;

    /// The toolbar, by the number of the button from 1 on; separators do nothing and are never enabled.
    void Toolbar1_ButtonClick(int index);
    bool isButtonEnabled(int index) const;

    /// Runs any other action of the user in the same way as a command; true if it did not fail.
    template <class Action>
    bool guarded(Action&& action);

    /// The user's actions on the data panel and the graph list.
    void Command1_Click();
    void Combo1_Click(int kind);
    void List1_Tick(int entry, bool ticked);
    void List1_Select(int entry);
    /// The right button on the list: its menu pops up.
    void List1_RightClick();
    /// The cells that are selected in the grid; an empty range for none.
    void fgdGrid_Select(const data::CellRange& cells);
    /// The right button on a cell of the grid, row and column 0 being the headers: its menu pops up over data cells.
    void fgdGrid_RightClick(int row, int column);

    /// The size of the picture in physical pixels has changed.
    void resizePicture(int width, int height);

    /// The mouse on the picture. x and y run from its upper left corner, W and H are its size, all in one unit. The
    /// button is 1 for left, 2 for right, 4 for middle; `buttons` is the sum of those that are held.
    void mouseDown(int button, double x, double y, double W, double H);
    void mouseMove(int buttons, double x, double y, double W, double H);
    void mouseUp();
    /// True while each idle turn of the event loop is to call `idleStep`: a turn of the scene goes on by itself. To be
    /// asked anew after every action of the user.
    bool wantsIdle() const;
    void idleStep();
    /// The command whose mode a left drag is in; empty for none.
    std::string_view dragCommand() const { return mouse_.dragCommand(); }

    /// The window was asked to close: offers to save, then it may go.
    void unload();

    /// Keeps all that is open in a recovery document and returns its path; empty if even that failed.
    std::filesystem::path saveRecovery(const std::filesystem::path& folder) const;

    bool SaveDone = false;
    int CopiedCount = 0;  ///< Graph records in the copy buffer.

 private:
    friend struct CommandTable;

    void mnuFileNew2D_Click();
    void mnuFileNew3D_Click();
    void mnuFileNew4D_Click();
    void mnuFileOpen_Click();
    void mnuFileSave_Click();
    void mnuFileSaveAs_Click();
    void mnuFileImport_Click();
    void mnuFileOutput_Click();
    void mnuFileGridded_Click();
    void mnuFilePrint_Click();
    void mnuFileExit_Click();
    void mnuEditCut_Click();
    void mnuEditCopy_Click();
    void mnuEditCopyAs_Click();
    void mnuEditPaste_Click();
    void mnuEditDelete_Click();
    void mnuEditDelAll_Click();
    void mnuViewSet_Click();
    void mnuDrawAxis_Click();
    void mnuDrawLight_Click();
    void mnuHelpAbout_Click();
    void mnuGESet_Click();
    void mnuGECutIt_Click();
    void mnuGECopy_Click();
    void mnuGEPaste_Click();
    void mnuGEDelete_Click();
    void mnuGEInsertRow_Click();
    void mnuGEInsertCol_Click();
    void mnuGEDelRow_Click();
    void mnuGEDelCol_Click();
    void drawGraph(int graphType);
    void openDemo(std::string_view fileName);

    void carryOut(std::string_view command);
    /// True for a command of the Help menu that leads nowhere.
    bool lacksTarget(std::string_view command) const;
    void openDocument(const std::filesystem::path& path);
    void enableForDocument();
    void newSpatialDocument(int sceneMode);
    void startSpatialDocument(int sceneMode);
    platform::Answer askToSaveChanges() const;
    /// Saves and, once that is done, deletes all graphs; false if the document stays.
    bool saveAndClear();
    void saveAs(const std::filesystem::path& path);
    void savePictureAs(const std::filesystem::path& path);
    /// Runs the writing of a file: a failure is told in the status line and leaves `SaveDone` false.
    void save(const std::filesystem::path& path, const std::function<void()>& write);
    /// Checks the panel's data; a fault is told and gives false.
    bool checkData();
    /// Asks for a file and writes a data text to it.
    void writeData(std::string_view text);
    void setStandardView(double roll, double pitch, double yaw);
    void show(Form& form);
    const data::CellRange& selectedCells() const;
    void showFailure(const std::exception& failure) const;

    core::AppState& state_;
    Mouse mouse_;
    Enabling enabling_;
    data::CellRange gridSelection_;
    int running_ = 0;          ///< Commands under way, one inside the other.
    std::string saveFailure_;  ///< Why the last save could not be written; empty if it was, or was cancelled.
};

template <class Action>
bool frmF1::guarded(Action&& action) {
    ++running_;
    bool done = true;
    try {
        action();
    } catch (const std::exception& failure) {
        showFailure(failure);
        done = false;
    }
    --running_;
    return done;
}

}  // namespace tessaplot::ui

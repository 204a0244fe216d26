#pragma once

#include <QMainWindow>
#include <filesystem>
#include <functional>
#include <string_view>
#include <vector>

#include "ui/main_window.h"

class QAction;
class QLabel;

namespace tessaplot::qt {

class DataPanelView;
class GraphListView;
class GridModel;
class PicturePane;
class ProgressPane;

/// The main window: the face of `frmF1`. It keeps nothing of the document; after every action of the user it shows anew
/// what the logic holds.
class MainWindow : public QMainWindow {
    Q_OBJECT

 public:
    explicit MainWindow(ui::frmF1& form);

    /// Shows the window, then opens the document at `path`, or an empty 3D document if `path` is empty. Throws Failure
    /// for a document that cannot be opened.
    void start(const std::filesystem::path& path);

    /// Brings every widget in line with the logic.
    void sync();

    void showStatus(std::string_view text);
    void displayPicture();
    /// Takes the progress of the command that runs; false asks it to stop.
    bool reportProgress(double share);
    /// Asks the command that runs to stop, if one does.
    void stopRun();

 protected:
    void closeEvent(QCloseEvent* event) override;

 private:
    void makePanes();
    QWidget* makeListPane();
    void makeStatusBar();
    void takeDefaultSize();
    void setBlocked(bool blocked);
    /// Runs one action of the user. Another one that comes while it lets events run is dropped.
    void act(const std::function<void()>& action);
    void endRun();

    ui::frmF1& form_;
    GridModel* gridModel_;
    DataPanelView* panel_;
    GraphListView* list_;
    PicturePane* picture_;
    ProgressPane* progress_;
    QLabel* status_;
    std::vector<QAction*> commands_;
    bool acting_ = false;
    bool closesAfterRun_ = false;
};

}  // namespace tessaplot::qt

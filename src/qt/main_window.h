#pragma once

#include <QMainWindow>
#include <QPoint>
#include <QTimer>
#include <cstdint>
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
class PictureWidget;
class ProgressPane;
class ToolBar;

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
    /// The picture as `platform::Desktop::readFrame` tells.
    std::vector<std::uint8_t> readFrame(int width, int height) const;
    /// Shows a popup menu of the table at the pointer, once the present event is done with.
    void popUpMenu(std::string_view name);
    /// Takes the progress of the command that runs; false asks it to stop.
    bool reportProgress(double share);
    /// Asks the command that runs to stop, if one does.
    void stopRun();

 protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

 private:
    void makeMenus();
    void makeToolBar();
    void makePanes();
    QWidget* makeListPane();
    void makeStatusBar();
    void followPanel();
    void followPicture();
    void followMouse(PictureWidget* surface);
    void takeDefaultSize();
    void setBlocked(bool blocked);
    /// Runs one action of the user. Another one that comes while it lets events run is dropped.
    void act(const std::function<void()>& action);
    void endRun();
    void turnIdly();
    void showHint(const QString& hint);

    ui::frmF1& form_;
    GridModel* gridModel_;
    DataPanelView* panel_;
    GraphListView* list_;
    PicturePane* picture_;
    ProgressPane* progress_;
    QLabel* status_;
    ToolBar* toolBar_ = nullptr;
    std::vector<QAction*> commands_;  ///< Of the menu bar and the popup menus.
    QTimer idle_;
    QPoint popUpAt_;
    QString hint_;  ///< In the status line; empty for none.
    bool acting_ = false;
    bool closesAfterRun_ = false;
};

}  // namespace tessaplot::qt

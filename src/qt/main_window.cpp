#include "qt/main_window.h"

#include <QAction>
#include <QCloseEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScopeGuard>
#include <QScreen>
#include <QStatusBar>
#include <QStatusTipEvent>
#include <QVBoxLayout>
#include <utility>

#include "qt/data_panel_view.h"
#include "qt/form_dialog.h"
#include "qt/graph_list_view.h"
#include "qt/grid_model.h"
#include "qt/grid_view.h"
#include "qt/menu_bar.h"
#include "qt/pane_splitter.h"
#include "qt/picture_pane.h"
#include "qt/picture_widget.h"
#include "qt/progress_pane.h"
#include "qt/text.h"
#include "qt/tool_bar.h"
#include "ui/menu_table.h"

namespace tessaplot::qt {

namespace {

constexpr QSize preferredSize(1180, 740);
constexpr double largestShareOfScreen = 0.92;
constexpr int panelWidth = 374;
constexpr int panelShare = 3;  ///< Heights of panel and list are as 3 to 1.
constexpr int listRowsAtLeast = 2;
constexpr int statusIndent = 4;
constexpr const char* noHint = "Ready";

}  // namespace

MainWindow::MainWindow(ui::frmF1& form)
    : form_(form),
      gridModel_(new GridModel(
          form.state().panel, [this](const std::function<void()>& edit) { return form_.guarded(edit); }, this)),
      panel_(new DataPanelView(gridModel_, this)),
      list_(new GraphListView(
          form.state().List1, [this](int entry, bool ticked) { act([=, this] { form_.List1_Tick(entry, ticked); }); },
          this)),
      picture_(new PicturePane(form.state(), this)),
      progress_(new ProgressPane(this)),
      status_(new QLabel(this)) {
    setWindowTitle("Tessaplot");
    form_.showForm = [this](ui::Form& dialog) { qt::showForm(this, dialog); };
    makeMenus();
    makeToolBar();
    makePanes();
    makeStatusBar();
    followPanel();
    followPicture();
    connect(progress_, &ProgressPane::blocking, this, &MainWindow::setBlocked);
    sync();
    takeDefaultSize();
}

void MainWindow::makeMenus() {
    const auto run = [this](std::string_view command) { act([=, this] { form_.run(command); }); };
    commands_ = fillMenuBar(*menuBar(), ui::menuBar(), run);
    for (const char* name : {"FunEdit", "GraphEdit", "mnuGE"}) {
        auto* popup = new QMenu(this);
        popup->setObjectName(name);
        const auto commands = fillPopupMenu(*popup, ui::popupMenu(name), run);
        commands_.insert(commands_.end(), commands.begin(), commands.end());
    }
    panel_->grid()->setCommands(findChild<QMenu*>("mnuGE")->actions());
}

void MainWindow::makeToolBar() {
    toolBar_ = new ToolBar([this](int button) { act([=, this] { form_.Toolbar1_ButtonClick(button); }); }, this);
    addToolBar(toolBar_);
}

void MainWindow::makePanes() {
    auto* left = new PaneSplitter(Qt::Vertical, this);
    left->setObjectName("Splitter2");
    left->addWidget(panel_);
    left->addWidget(makeListPane());
    left->setStretchFactor(0, panelShare);
    left->setStretchFactor(1, 1);

    auto* all = new PaneSplitter(Qt::Horizontal, this);
    all->setObjectName("Splitter");
    all->addWidget(left);
    all->addWidget(picture_);
    all->setStretchFactor(0, 0);
    all->setStretchFactor(1, 1);
    all->setSizes({panelWidth, preferredSize.width() - panelWidth});
    setCentralWidget(all);
}

QWidget* MainWindow::makeListPane() {
    auto* pane = new QWidget(this);
    auto* caption = new QLabel(tr("&Graphs"), pane);
    caption->setBuddy(list_);
    list_->setObjectName("List1");
    list_->setAccessibleName(tr("Graphs"));
    list_->setToolTip(tr("Ticked graphs are shown and saved"));
    list_->setMinimumHeight(listRowsAtLeast * list_->fontMetrics().lineSpacing());
    auto* column = new QVBoxLayout(pane);
    column->setContentsMargins(6, 2, 6, 4);
    column->setSpacing(2);
    column->addWidget(caption);
    column->addWidget(list_, 1);
    return pane;
}

void MainWindow::makeStatusBar() {
    statusBar()->setObjectName("StatusBar1");
    status_->setObjectName("StatusText");
    status_->setTextFormat(Qt::PlainText);
    status_->setIndent(statusIndent);
    // A long message is cut, and told whole by its tool tip, rather than widening the window.
    status_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    statusBar()->addWidget(status_, 1);
    statusBar()->addPermanentWidget(progress_);
    showStatus(noHint);
}

void MainWindow::followPanel() {
    connect(panel_, &DataPanelView::kindChosen, this,
            [this](int kind) { act([=, this] { form_.Combo1_Click(kind); }); });
    connect(panel_, &DataPanelView::applied, this, [this] { act([this] { form_.Command1_Click(); }); });
    connect(panel_, &DataPanelView::boxEdited, this, [this](int box, const QString& text) {
        form_.guarded([&] { form_.state().panel.setText(box, text.toStdString()); });
    });
    const auto tellSelection = [this] { form_.fgdGrid_Select(panel_->grid()->selectedCells()); };
    tellSelection();
    connect(panel_->grid(), &GridView::cellsSelected, this, tellSelection);
    connect(panel_->grid(), &GridView::menuWanted, this, [this](int row, int column, QPoint at) {
        popUpAt_ = at;
        act([=, this] { form_.fgdGrid_RightClick(row, column); });
    });
    connect(list_, &GraphListView::entrySelected, this, [this](int entry) { form_.List1_Select(entry); });
    connect(list_, &GraphListView::menuWanted, this, [this](QPoint at) {
        popUpAt_ = at;
        act([this] { form_.List1_RightClick(); });
    });
}

void MainWindow::followPicture() {
    PictureWidget* surface = picture_->surface();
    if (surface == nullptr) return;
    connect(surface, &PictureWidget::surfaceResized, this,
            [this](int width, int height) { form_.resizePicture(width, height); });
    // Once the surface has painted: a box may open.
    connect(
        surface, &PictureWidget::troubled, this,
        [this](const QString& reason) {
            form_.state().desktop.askUser({"Tessaplot", reason.toStdString(), platform::Icon::Warning});
        },
        Qt::QueuedConnection);
    followMouse(surface);
    // The next turn begins when the last one is on the screen and nothing else is waiting.
    idle_.setSingleShot(true);
    connect(&idle_, &QTimer::timeout, this, &MainWindow::turnIdly);
    connect(surface, &PictureWidget::frameSwapped, this, [this] {
        if (form_.wantsIdle()) idle_.start();
    });
}

void MainWindow::followMouse(PictureWidget* surface) {
    connect(surface, &PictureWidget::pressed, this, [this, surface](int button, QPointF at) {
        const QSize size = surface->pictureSize();
        popUpAt_ = surface->mapToGlobal((at / surface->devicePixelRatioF()).toPoint());
        act([=, this] { form_.mouseDown(button, at.x(), at.y(), size.width(), size.height()); });
    });
    connect(surface, &PictureWidget::moved, this, [this, surface](int buttons, QPointF at) {
        if (acting_ || buttons == 0) return;
        const QSize size = surface->pictureSize();
        form_.guarded([&] { form_.mouseMove(buttons, at.x(), at.y(), size.width(), size.height()); });
    });
    connect(surface, &PictureWidget::released, this, [this] { act([this] { form_.mouseUp(); }); });
}

void MainWindow::takeDefaultSize() {
    resize(preferredSize.boundedTo(screen()->availableSize() * largestShareOfScreen));
}

void MainWindow::start(const std::filesystem::path& path) {
    picture_->setHeld(true);  // The scene without the document would be drawn for nothing.
    show();
    if (picture_->surface() == nullptr)
        form_.state().desktop.askUser({"Tessaplot", "ChoosePixelFormat failed", platform::Icon::Error});
    acting_ = true;
    const auto end = qScopeGuard([this] {
        picture_->setHeld(false);
        endRun();
    });
    form_.load(path);
}

void MainWindow::act(const std::function<void()>& action) {
    if (acting_) return;
    acting_ = true;
    const auto end = qScopeGuard([this] { endRun(); });
    panel_->grid()->commitEdit();
    showStatus(noHint);
    form_.guarded(action);
}

void MainWindow::endRun() {
    acting_ = false;
    progress_->finish();
    sync();
    // Once the present event is done with: it may belong to a widget of this window.
    if (std::exchange(closesAfterRun_, false)) QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

void MainWindow::turnIdly() {
    if (!acting_) form_.idleStep();
}

void MainWindow::sync() {
    const core::AppState& state = form_.state();
    panel_->sync(state.panel);
    gridModel_->sync();
    list_->sync();
    for (QAction* command : commands_) {
        const std::string name = command->objectName().toStdString();
        command->setEnabled(form_.isEnabled(name));
        command->setChecked(name == form_.dragCommand());
    }
    toolBar_->sync(form_);
    if (form_.wantsIdle()) idle_.start();
}

void MainWindow::showStatus(std::string_view text) {
    hint_.clear();
    status_->setText(qString(text));
    status_->setToolTip(status_->text());
}

/// An empty hint takes back the last one, but no message that came since.
void MainWindow::showHint(const QString& hint) {
    if (hint.isEmpty() && hint_.isEmpty()) return;
    showStatus(hint.isEmpty() ? noHint : hint.toStdString());
    hint_ = hint;
}

void MainWindow::displayPicture() {
    picture_->display();
}

std::vector<std::uint8_t> MainWindow::readFrame(int width, int height) const {
    return picture_->readFrame(width, height);
}

void MainWindow::popUpMenu(std::string_view name) {
    auto* menu = findChild<QMenu*>(qString(name));
    if (menu == nullptr) return;
    QMetaObject::invokeMethod(
        menu, [menu, at = popUpAt_] { menu->popup(at); }, Qt::QueuedConnection);
}

bool MainWindow::reportProgress(double share) {
    return progress_->report(share);
}

void MainWindow::stopRun() {
    progress_->cancel();
}

void MainWindow::setBlocked(bool blocked) {
    menuBar()->setEnabled(!blocked);
    toolBar_->setEnabled(!blocked);
    centralWidget()->setEnabled(!blocked);
}

bool MainWindow::event(QEvent* event) {
    if (event->type() != QEvent::StatusTip) return QMainWindow::event(event);
    showHint(static_cast<QStatusTipEvent*>(event)->tip());
    return true;
}

void MainWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    toolBar_->fitInto(width());
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (progress_->active()) {
        closesAfterRun_ = true;
        progress_->cancel();
        event->ignore();
        return;
    }
    panel_->grid()->commitEdit();
    form_.guarded([this] { form_.unload(); });
    event->accept();
}

}  // namespace tessaplot::qt

#include "qt/main_window.h"

#include <QAction>
#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QScopeGuard>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>
#include <utility>

#include "qt/data_panel_view.h"
#include "qt/graph_list_view.h"
#include "qt/grid_model.h"
#include "qt/menu_bar.h"
#include "qt/picture_pane.h"
#include "qt/progress_pane.h"
#include "ui/menu_table.h"

namespace tessaplot::qt {

namespace {

constexpr QSize preferredSize(1180, 740);
constexpr double largestShareOfScreen = 0.92;
constexpr int panelWidth = 374;
constexpr int panelShare = 3;  ///< Heights of panel and list are as 3 to 1.
constexpr int listRowsAtLeast = 2;
constexpr int statusIndent = 4;

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
    commands_ = fillMenuBar(*menuBar(), ui::menuBar(),
                            [this](std::string_view command) { act([=, this] { form_.run(command); }); });
    makePanes();
    makeStatusBar();

    connect(panel_, &DataPanelView::kindChosen, this,
            [this](int kind) { act([=, this] { form_.Combo1_Click(kind); }); });
    connect(panel_, &DataPanelView::applied, this, [this] { act([this] { form_.Command1_Click(); }); });
    connect(panel_, &DataPanelView::boxEdited, this, [this](int box, const QString& text) {
        form_.guarded([&] { form_.state().panel.setText(box, text.toStdString()); });
    });
    connect(list_, &GraphListView::entrySelected, this, [this](int entry) { form_.List1_Select(entry); });
    connect(picture_, &PicturePane::surfaceResized, this,
            [this](int width, int height) { form_.resizePicture(width, height); });
    connect(progress_, &ProgressPane::blocking, this, &MainWindow::setBlocked);
    sync();
    takeDefaultSize();
}

void MainWindow::makePanes() {
    auto* left = new QSplitter(Qt::Vertical, this);
    left->setObjectName("Splitter2");
    left->addWidget(panel_);
    left->addWidget(makeListPane());
    left->setStretchFactor(0, panelShare);
    left->setStretchFactor(1, 1);
    left->setChildrenCollapsible(false);

    auto* all = new QSplitter(Qt::Horizontal, this);
    all->setObjectName("Splitter");
    all->addWidget(left);
    all->addWidget(picture_);
    all->setStretchFactor(0, 0);
    all->setStretchFactor(1, 1);
    all->setChildrenCollapsible(false);
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
    showStatus("Ready");
}

void MainWindow::takeDefaultSize() {
    resize(preferredSize.boundedTo(screen()->availableSize() * largestShareOfScreen));
}

void MainWindow::start(const std::filesystem::path& path) {
    show();
    if (!picture_->hasPicture())
        form_.state().desktop.askUser({"Tessaplot", "ChoosePixelFormat failed", platform::Icon::Error});
    acting_ = true;
    const auto end = qScopeGuard([this] { endRun(); });
    form_.load(path);
}

void MainWindow::act(const std::function<void()>& action) {
    if (acting_) return;
    acting_ = true;
    const auto end = qScopeGuard([this] { endRun(); });
    panel_->commitEdit();
    showStatus("Ready");
    form_.guarded(action);
}

void MainWindow::endRun() {
    acting_ = false;
    progress_->finish();
    sync();
    // Once the present event is done with: it may belong to a widget of this window.
    if (std::exchange(closesAfterRun_, false)) QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

void MainWindow::sync() {
    const core::AppState& state = form_.state();
    panel_->sync(state.panel);
    gridModel_->sync();
    list_->sync();
    for (QAction* command : commands_)
        command->setEnabled(form_.isEnabled(command->objectName().toStdString()));
}

void MainWindow::showStatus(std::string_view text) {
    status_->setText(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
    status_->setToolTip(status_->text());
}

void MainWindow::displayPicture() {
    picture_->display();
}

bool MainWindow::reportProgress(double share) {
    return progress_->report(share);
}

void MainWindow::stopRun() {
    progress_->cancel();
}

void MainWindow::setBlocked(bool blocked) {
    menuBar()->setEnabled(!blocked);
    centralWidget()->setEnabled(!blocked);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (progress_->active()) {
        closesAfterRun_ = true;
        progress_->cancel();
        event->ignore();
        return;
    }
    panel_->commitEdit();
    form_.guarded([this] { form_.unload(); });
    event->accept();
}

}  // namespace tessaplot::qt

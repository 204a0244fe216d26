#include <QImage>
#include <QLineEdit>
#include <QListView>
#include <QMenuBar>
#include <QPalette>
#include <QStatusBar>
#include <algorithm>
#include <chrono>
#include <limits>

#include "qt/window_test.h"
#include "ui/menu_table.h"
#include "ui/toolbar_table.h"

namespace tessaplot::qt {
namespace {

using MainWindowTest = WindowTest;
using platform::Answer;
using testing::ElementsAre;

TEST_F(MainWindowTest, startsWithoutOpenGlAndSaysSoInThePicturesPlace) {
    EXPECT_THAT(asked, ElementsAre("ChoosePixelFormat failed"));
    EXPECT_TRUE(shows("There is no picture"));
    choose("mnuViewTop");
    EXPECT_EQ(state.ShownGraphs.RotPitch, -90);
}

TEST_F(MainWindowTest, everyMenuEntryIsAnActionOfItsNameWithHintAndShortcut) {
    for (const ui::MenuEntry& entry : ui::menuBar()) {
        if (entry.hint.empty()) continue;
        const auto* action = find<QAction>(std::string(entry.name).c_str());
        EXPECT_EQ(action->statusTip().toStdString(), entry.hint);
        EXPECT_EQ(action->shortcut().toString(QKeySequence::PortableText).toStdString(), entry.shortcut);
    }
}

TEST_F(MainWindowTest, everyButtonHasAPictureThatTakesTheTextColourOfThePalette) {
    const auto lightest = [](const QAction* action) {
        const QImage picture = action->icon().pixmap(QSize(32, 32), 1.0).toImage();
        int value = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                if (picture.pixelColor(x, y).alpha() > 128)
                    value = std::max(value, picture.pixelColor(x, y).lightness());
        return value;
    };
    for (const ui::ToolbarButton& place : ui::toolbar()) {
        if (place.command.empty()) continue;
        const auto* action = find<QAction>(("Toolbar1_" + std::to_string(place.index)).c_str());
        EXPECT_GT(lightest(action), 0) << place.command;
        EXPECT_EQ(action->toolTip().toStdString(), place.hint);
    }
    const QPalette before = QApplication::palette();
    EXPECT_LT(lightest(find<QAction>("mnuViewFit")), 200);
    QApplication::setPalette(QPalette(QColor(40, 40, 40)));
    EXPECT_GT(lightest(find<QAction>("mnuViewFit")), 200);
    QApplication::setPalette(before);
}

TEST_F(MainWindowTest, theListTicksByKeyboardAndMirrorsTheLogic) {
    addGraph();
    addGraph();
    auto* list = find<QListView>("List1");
    ASSERT_EQ(list->model()->rowCount(), 2);
    list->setFocus();
    list->setCurrentIndex(list->model()->index(1, 0));
    EXPECT_EQ(state.List1.selected, 1);
    QTest::keyClick(list, Qt::Key_Space);
    ASSERT_EQ(state.ShownGraphs.Graphs.size(), 1U);
    EXPECT_EQ(state.ShownGraphs.Graphs[0], state.AllGraphs.Graphs[1]);
    EXPECT_EQ(list->model()->index(1, 0).data(Qt::CheckStateRole).toInt(), Qt::Checked);

    core::DeleteGraph(state, 1);
    state.List1.selected = 0;
    window.sync();
    EXPECT_EQ(list->model()->rowCount(), 1);
    EXPECT_EQ(list->currentIndex().row(), 0);
    EXPECT_EQ(list->model()->index(0, 0).data(Qt::CheckStateRole).toInt(), Qt::Checked);

    tick(Qt::Unchecked);
    state.TheData.Reg3DX(0, 0) = std::numeric_limits<double>::infinity();
    asked.clear();
    QTest::keyClick(list, Qt::Key_Space);
    EXPECT_EQ(asked.size(), 1U) << "a tick that fails is told and taken back";
    EXPECT_EQ(list->model()->index(0, 0).data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
}

TEST_F(MainWindowTest, aLongCommandShowsProgressTakesNoOtherAndCanBeStopped) {
    auto* progress = find<QWidget>("Progress");
    int turns = 0;
    int reports = 0;
    bool stopped = false;
    state.desktop.display = [&] {
        ++turns;
        const auto begun = std::chrono::steady_clock::now();
        const auto age = [&] { return std::chrono::steady_clock::now() - begun; };
        while (!stopped && age() < std::chrono::seconds(20)) {
            ++reports;
            stopped = !state.desktop.reportProgress(0.5);
            if (age() < std::chrono::milliseconds(400)) {
                EXPECT_FALSE(progress->isVisible());
            }
        }
    };
    QTimer whenShown;
    QObject::connect(&whenShown, &QTimer::timeout, [&] {
        if (!progress->isVisible()) return;
        whenShown.stop();
        EXPECT_FALSE(window.menuBar()->isEnabled());
        EXPECT_FALSE(find<QLineEdit>("Text1")->isEnabled());
        choose("mnuViewTop");
        window.close();
        EXPECT_TRUE(window.isVisible()) << "closing waits for the command";
        QTest::mouseClick(find<QPushButton>("CancelRun"), Qt::LeftButton);
    });
    whenShown.start(20);
    choose("mnuViewFront");
    EXPECT_TRUE(stopped);
    EXPECT_EQ(turns, 1);
    EXPECT_EQ(state.ShownGraphs.RotPitch, 0) << "the other command was dropped";
    EXPECT_FALSE(progress->isVisible());
    EXPECT_TRUE(window.menuBar()->isEnabled());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window.isVisible(); }));
}

TEST_F(MainWindowTest, closingOffersToSaveAndExitCloses) {
    addGraph();
    asked.clear();
    answers = {Answer::Yes};
    file = folder / "end.tsp";
    choose("mnuFileExit");
    EXPECT_THAT(asked, ElementsAre("Do you want to save the graphs?"));
    EXPECT_FALSE(window.isVisible());
    EXPECT_TRUE(std::filesystem::exists(file));
}

}  // namespace
}  // namespace tessaplot::qt

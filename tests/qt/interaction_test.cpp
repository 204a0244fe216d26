#include <QClipboard>
#include <QContextMenuEvent>
#include <QFile>
#include <QImage>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QOpenGLWidget>
#include <QPrintDialog>
#include <QPrinter>
#include <QSplitter>
#include <QTableView>
#include <cmath>

#include "qt/picture_widget.h"
#include "qt/window_test.h"

namespace tessaplot::qt {
namespace {

/// The window as a person works it, with mouse, keys and the clipboard of the display.
class InteractionTest : public WindowTest {
 protected:
    void SetUp() override {
        WindowTest::SetUp();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        surface = static_cast<PictureWidget*>(find<QOpenGLWidget>("picDraw"));
        grid = find<QTableView>("fgdGrid");
        addGraph();
        tick(Qt::Checked);
        find<QListView>("List1")->setCurrentIndex(find<QListView>("List1")->model()->index(0, 0));
    }

    void drag(QPoint from, QPoint to) {
        QTest::mousePress(surface, Qt::LeftButton, {}, from);
        QTest::mouseMove(surface, (from + to) / 2);
        QTest::mouseMove(surface, to);
        QTest::mouseRelease(surface, Qt::LeftButton, {}, to);
    }

    void selectCells(int rows, int columns) {
        grid->setFocus();
        grid->selectionModel()->select({grid->model()->index(0, 0), grid->model()->index(rows - 1, columns - 1)},
                                       QItemSelectionModel::ClearAndSelect);
    }

    QMenu* openMenu(const char* name) {
        auto* menu = find<QMenu>(name);
        EXPECT_TRUE(QTest::qWaitFor([&] { return menu->isVisible(); })) << name;
        return menu;
    }

    PictureWidget* surface = nullptr;
    QTableView* grid = nullptr;
};

TEST_F(InteractionTest, dragsDoWhatTheModeSaysInThePicturesOwnPixels) {
    const auto height = [this] { return state.TheView.VolHeight; };
    const double before = height();
    const int third = surface->height() / 3;
    drag({50, third}, {50, 2 * third});
    EXPECT_EQ(height(), before) << "no mode is chosen";

    choose("mnuViewZoom");
    const double share = third * surface->devicePixelRatioF() / surface->pictureSize().height();
    drag({50, third}, {50, 2 * third});
    EXPECT_NEAR(height() / before, std::pow(1 + share / 2, 2), 0.01);
    EXPECT_FALSE(state.QuickDraw) << "the picture ends in full quality";
}

TEST_F(InteractionTest, aTurnSpinsOnWhileKeysAreTakenUntilThePictureIsPressed) {
    choose("mnuViewRotate");
    drag({60, 60}, {100, 90});
    const auto turned = state.CurQuat;
    ASSERT_TRUE(QTest::qWaitFor([&] { return state.CurQuat != turned; })) << "it turns by itself";

    auto* box = find<QLineEdit>("Text1");
    box->setFocus();
    box->clear();
    int frames = 0;
    QObject::connect(surface, &QOpenGLWidget::frameSwapped, box, [&frames] { ++frames; });
    int mostFrames = 0;
    QObject::connect(box, &QLineEdit::textChanged, box, [&] { mostFrames = std::max(mostFrames, frames); });
    for (int i = 1; i <= 20; ++i) {
        frames = 0;
        QCoreApplication::postEvent(box, new QKeyEvent(QEvent::KeyPress, Qt::Key_7, Qt::NoModifier, "7"));
        ASSERT_TRUE(QTest::qWaitFor([&] { return box->text().size() == i; }));
    }
    EXPECT_LE(mostFrames, 1) << "a key waits for the frame under way at most";

    QTest::mouseClick(surface, Qt::LeftButton, {}, {60, 60});
    const auto stopped = state.CurQuat;
    QTest::qWait(100);
    EXPECT_EQ(state.CurQuat, stopped);

    drag({60, 60}, {100, 90});
    EXPECT_TRUE(form.wantsIdle());
    window.close();
    EXPECT_FALSE(form.wantsIdle()) << "closing ends the spin";
}

TEST_F(InteractionTest, keysOfTheClipboardFollowTheFocus) {
    selectCells(2, 2);
    QTest::keyClick(grid, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "0.5\t1\n0.5\t2\n");
    EXPECT_EQ(form.CopiedCount, 0);
    QTest::keyClick(grid, Qt::Key_Delete);
    EXPECT_EQ(state.panel.cell(2, 2), "");
    EXPECT_EQ(state.AllGraphs.Graphs.size(), 1U);
    QTest::keyClick(grid, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(state.panel.cell(2, 2), "2");
    QTest::keyClick(grid, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(state.panel.cell(2, 2), "");
    QTest::keyClick(grid, Qt::Key_Delete, Qt::KeypadModifier);
    EXPECT_EQ(state.AllGraphs.Graphs.size(), 1U);

    QGuiApplication::clipboard()->setText("1,5\r\n2\r\n");
    grid->setCurrentIndex(grid->model()->index(8, 3));
    QTest::keyClick(grid, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(state.panel.cell(4, 9), "1,5");
    EXPECT_EQ(state.panel.cell(4, 10), "2") << "the grid has grown";
    EXPECT_EQ(grid->currentIndex(), grid->model()->index(8, 3));

    auto* box = find<QLineEdit>("Text1");
    box->setFocus();
    box->selectAll();
    QTest::keyClick(box, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "3");

    auto* list = find<QListView>("List1");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(form.CopiedCount, 1);
    QTest::keyClick(list, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(state.AllGraphs.Graphs.size(), 2U);
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_EQ(state.AllGraphs.Graphs.size(), 1U);
    EXPECT_TRUE(asked.empty());
}

TEST_F(InteractionTest, theRightButtonOpensTheMenuOfEachPane) {
    QTest::mouseClick(surface, Qt::RightButton, {}, {40, 40});
    QTest::keyClick(openMenu("GraphEdit"), Qt::Key_Escape);

    const auto rightClick = [](QAbstractScrollArea* view, QPoint at) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, view->viewport()->mapToGlobal(at));
        QCoreApplication::sendEvent(view->viewport(), &event);
    };
    auto* list = find<QListView>("List1");
    rightClick(list, list->visualRect(list->model()->index(0, 0)).center());
    QMenu* menu = openMenu("FunEdit");
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(find<QAction>("mnuFunCopy")).center());
    EXPECT_EQ(form.CopiedCount, 1);

    selectCells(2, 1);
    rightClick(grid, grid->visualRect(grid->model()->index(1, 0)).center());
    menu = openMenu("mnuGE");
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(find<QAction>("mnuGEDelete")).center());
    EXPECT_EQ(state.panel.cell(1, 2), "");
    EXPECT_EQ(state.panel.cell(2, 2), "2");
}

TEST_F(InteractionTest, hintsShowWhileThePointerIsOverAButton) {
    QTest::mouseMove(surface, {20, 20});
    QTest::mouseMove(button(6), button(6)->rect().center());
    const auto* status = find<QLabel>("StatusText");
    EXPECT_TRUE(QTest::qWaitFor([&] { return status->text() == "Open file"; })) << status->text().toStdString();
    QTest::mouseMove(surface, {20, 20});
    EXPECT_TRUE(QTest::qWaitFor([&] { return status->text() == "Ready"; }));
}

TEST_F(InteractionTest, splittersShareTheRoomOnRelease) {
    auto* splitter = find<QSplitter>("Splitter");
    const int before = splitter->sizes()[0];
    QWidget* handle = splitter->handle(1);
    QTest::mousePress(handle, Qt::LeftButton, {}, handle->rect().center());
    QTest::mouseMove(handle, handle->rect().center() + QPoint(60, 0));
    EXPECT_EQ(splitter->sizes()[0], before);
    QTest::mouseRelease(handle, Qt::LeftButton, {}, handle->rect().center() + QPoint(60, 0));
    EXPECT_NEAR(splitter->sizes()[0], before + 60, 3);
    EXPECT_TRUE(QTest::qWaitFor([&] { return state.TheView.viewportWidth() == surface->pictureSize().width(); }));
}

TEST_F(InteractionTest, savedAndCopiedPicturesAreWhatTheSurfaceShowsAtAnyWidth) {
    choose("mnuViewFit");
    for (int i = 0; i < 4; ++i) {
        const int width = surface->width();
        window.resize(window.width() - 1, window.height());
        ASSERT_TRUE(QTest::qWaitFor([&] {
            return surface->width() != width && state.TheView.viewportWidth() == surface->pictureSize().width();
        }));
        const QSize size = surface->pictureSize();
        EXPECT_EQ(size.width() % 4, 3);
        file = folder / "picture.bmp";
        fileFilter = 2;
        choose("mnuFileSaveAs");
        const QImage saved(QString::fromStdString(file.string()));
        ASSERT_EQ(saved.size(), size + QSize(1, 0));
        const QImage shown = surface->grabFramebuffer().convertToFormat(saved.format());
        EXPECT_EQ(saved.copy({{}, size}), shown.copy({{}, size}));
    }
    choose("mnuEditCopyAs");
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), surface->pictureSize() + QSize(1, 0));
    EXPECT_TRUE(asked.empty());
}

TEST_F(InteractionTest, printingToAPdfMakesOnePageOfThePicture) {
    const QString target = QString::fromStdString((folder / "page.pdf").string());
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        dialog->printer()->setOutputFormat(QPrinter::PdfFormat);
        dialog->printer()->setOutputFileName(target);
        dialog->done(QDialog::Accepted);
    });
    choose("mnuFilePrint");
    QFile page(target);
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    const QByteArray content = page.readAll();
    EXPECT_TRUE(content.startsWith("%PDF"));
    EXPECT_TRUE(content.contains("/Width " + QByteArray::number(surface->pictureSize().width() + 1)));
    EXPECT_TRUE(asked.empty());
}

TEST_F(InteractionTest, aSurfaceThatLosesItsOpenGlIsReplacedByAWordAndAllElseGoesOn) {
    emit surface->refused("The context was lost.");
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(window.findChild<QOpenGLWidget*>("picDraw"), nullptr);
    EXPECT_TRUE(shows("The context was lost."));
    choose("mnuViewTop");
    EXPECT_EQ(state.ShownGraphs.RotPitch, -90);
    choose("mnuEditCopyAs");
    EXPECT_EQ(asked.size(), 1U) << "there is no picture to copy";
}

TEST_F(InteractionTest, aSurfaceOfOnePixelDrawsAndIsRead) {
    window.resize(1, 1);
    QCoreApplication::processEvents();
    PictureWidget tiny(state, nullptr);
    tiny.setWindowFlag(Qt::FramelessWindowHint);
    tiny.resize(1, 1);
    tiny.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&tiny));
    tiny.grabFramebuffer();
    EXPECT_EQ(tiny.readFrame(2, 1).size(), 8U);
    EXPECT_TRUE(asked.empty());
}

}  // namespace
}  // namespace tessaplot::qt

#include <QLineEdit>
#include <QListView>
#include <QOpenGLWidget>
#include <limits>

#include "qt/application.h"
#include "qt/window_test.h"

namespace tessaplot::qt {
namespace {

class PictureTest : public WindowTest {
 protected:
    void SetUp() override {
        WindowTest::SetUp();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        surface = window.findChild<QOpenGLWidget*>("picDraw");
        ASSERT_NE(surface, nullptr);
    }

    /// Pixels of the picture that are not white ground.
    int inked() {
        const QImage picture = surface->grabFramebuffer();
        int count = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                count += picture.pixelColor(x, y) != Qt::white;
        return count;
    }

    QOpenGLWidget* surface = nullptr;
};

TEST_F(PictureTest, newOpenTickSaveOnARealDisplay) {
    EXPECT_TRUE(asked.empty());
    EXPECT_EQ(inked(), 0);
    addGraph();
    tick(Qt::Checked);
    choose("mnuViewFit");
    const int shown = inked();
    EXPECT_GT(shown, 1000);

    file = folder / "one.tsp";
    choose("mnuFileSave");
    answers = {platform::Answer::No};
    choose("mnuFileNew3D");
    EXPECT_EQ(inked(), 0);
    state.panel.setText(1, "");
    choose("mnuFileOpen");
    EXPECT_EQ(inked(), shown) << "the document shows the same picture again";
    EXPECT_EQ(find<QLineEdit>("Text1")->text(), "3");
    EXPECT_EQ(find<QListView>("List1")->model()->rowCount(), 1);
    tick(Qt::Unchecked);
    EXPECT_EQ(inked(), 0);
}

TEST_F(PictureTest, theSceneKnowsTheSurfaceInPhysicalPixels) {
    const auto fits = [this] {
        const QSize physical = surface->grabFramebuffer().size();
        EXPECT_EQ(physical, surface->size() * surface->devicePixelRatioF());
        const QSize unused = physical - QSize(state.TheView.viewportWidth(), state.TheView.viewportHeight());
        return unused.height() == 0 && unused.width() >= 0 && unused.width() < 4;
    };
    EXPECT_TRUE(fits());
    window.resize(window.width() - 101, window.height() - 57);
    EXPECT_TRUE(QTest::qWaitFor(fits));
}

TEST_F(PictureTest, thePictureSurvivesAMoveToAnotherWindow) {
    addGraph();
    tick(Qt::Checked);
    const int shown = inked();
    QWidget other;
    other.resize(window.size());
    QWidget* before = surface->parentWidget();
    surface->setParent(&other);
    surface->show();
    other.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&other));
    EXPECT_EQ(inked(), shown);
    surface->setParent(before);
}

TEST_F(PictureTest, aFailureWhilePaintingComesOutOfTheEventLoop) {
    addGraph();
    tick(Qt::Checked);
    std::string failure;
    auto& application = *static_cast<Application*>(QCoreApplication::instance());
    application.setLastResort([&](const char* message) { failure = message; });
    state.TheView.ProjectType = 2;
    state.TheData.Reg3DX(0, 0) = std::numeric_limits<double>::infinity();
    surface->update();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !failure.empty(); }));
    application.setLastResort({});
    state.TheView.ProjectType = 1;
    EXPECT_GT(inked(), 1000) << "the surface still paints";
}

}  // namespace
}  // namespace tessaplot::qt

#include <gtest/gtest.h>

#include "core/refresh.h"
#include "scripted_window.h"

namespace tessaplot::ui {
namespace {

constexpr double W = 200;
constexpr double H = 100;

class MouseTest : public ScriptedWindow {
 protected:
    void SetUp() override {
        ScriptedWindow::SetUp();
        addGraph();
        window.resizePicture(200, 100);
        displays = 0;
    }
    void press(double x, double y) { window.mouseDown(mouse_button::left, x, y, W, H); }
    void drag(double x, double y) { window.mouseMove(mouse_button::left, x, y, W, H); }
    void release() { window.mouseUp(); }
    std::size_t samples() const {
        const std::string text = gl::toText(*state.compiled.list900);
        std::size_t count = 0;
        for (std::size_t at = text.find("glAccum GL_ACCUM"); at != std::string::npos;
             at = text.find("glAccum GL_ACCUM", at + 1))
            ++count;
        return count;
    }
};

TEST_F(MouseTest, aZoomDragScalesTheVolumeByTheShareOfTheHeight) {
    window.run("mnuViewZoom");
    const double before = state.TheView.VolHeight;
    press(10, 40);
    drag(90, 65);
    EXPECT_DOUBLE_EQ(state.TheView.VolHeight, before * 1.25);
    EXPECT_TRUE(state.QuickDraw);
    EXPECT_EQ(samples(), 2U);
    drag(90, 40);
    EXPECT_DOUBLE_EQ(state.TheView.VolHeight, before * 1.25 * 0.75);
    drag(90, -60);
    drag(90, -190);
    EXPECT_DOUBLE_EQ(state.TheView.VolHeight, before * 1.25 * 0.75) << "factors of 0 and below are ignored";
    drag(90, -90);
    EXPECT_DOUBLE_EQ(state.TheView.VolHeight, before * 1.25 * 0.75 * 2) << "the pointer was followed all the same";
    release();
    EXPECT_FALSE(state.QuickDraw);
    EXPECT_EQ(samples(), 8U);
    EXPECT_EQ(displays, 7);
}

TEST_F(MouseTest, aPanDragMovesByTheShareOfThePicture) {
    window.run("mnuViewZoom");
    window.run("mnuViewMove");
    core::AppState expected;
    expected.TheView = state.TheView;
    expected.TheView.MoveView(0.25, 0.5);
    press(10, 70);
    drag(60, 20);
    EXPECT_EQ(state.TheView.EyePos.x, expected.TheView.EyePos.x);
    EXPECT_EQ(state.TheView.EyePos.y, expected.TheView.EyePos.y);
    EXPECT_EQ(state.TheView.VolHeight, expected.TheView.VolHeight);
    release();
    EXPECT_FALSE(window.wantsIdle()) << "nothing spins after a pan";
}

TEST_F(MouseTest, aTurnComposesWithTheRotationAndSpinsOnUntilTheNextPress) {
    window.run("mnuViewRotate");
    EXPECT_EQ(state.RotateMode, scene::RotateMode::Free);
    const scene::Quaternion before = state.CurQuat;
    const scene::Quaternion step = scene::Trackball(scene::RotateMode::Free, 0, 0, 0.25, 0.5);
    press(100, 50);
    drag(125, 25);
    EXPECT_EQ(state.CurQuat, scene::AddQuats(step, before));
    EXPECT_TRUE(state.UseQuat);
    EXPECT_FALSE(window.wantsIdle()) << "nothing spins before the first release";
    release();
    ASSERT_TRUE(window.wantsIdle());
    EXPECT_EQ(samples(), 2U);
    window.idleStep();
    window.idleStep();
    EXPECT_EQ(state.CurQuat, scene::AddQuats(step, scene::AddQuats(step, scene::AddQuats(step, before))));
    window.guarded([this] { EXPECT_FALSE(window.wantsIdle()) << "a command or its dialog holds the spin"; });

    press(3, 3);
    EXPECT_FALSE(window.wantsIdle());
    EXPECT_EQ(samples(), 8U);
    release();
    EXPECT_FALSE(window.wantsIdle()) << "a click alone spins nothing";

    press(100, 50);
    drag(125, 25);
    drag(125, 25);
    release();
    const scene::Quaternion still = state.CurQuat;
    EXPECT_TRUE(window.wantsIdle()) << "redrawing goes on after a stop";
    window.idleStep();
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_NEAR(state.CurQuat[i], still[i], 1e-15);

    window.run("mnuViewFront");
    EXPECT_FALSE(state.UseQuat);
    EXPECT_EQ(state.CurQuat, scene::quatFromAngles(0, 0, 0));
    drag(150, 60);
    answers = {platform::Answer::No};
    window.unload();
    EXPECT_FALSE(window.wantsIdle());
    window.idleStep();
}

TEST_F(MouseTest, constrainedTurnsKeepTheirAxis) {
    const struct {
        const char* command;
        std::size_t axis;
    } turns[] = {{"mnuViewRotateX", 2}, {"mnuViewRotateY", 0}, {"mnuViewRotateZ", 1}};
    for (const auto& [command, axis] : turns) {
        window.run(command);
        window.run("mnuViewFront");
        press(100, 50);
        drag(130, 42);
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_EQ(state.CurQuat[i] != 0, i == axis) << command << " " << i;
        press(0, 0);
    }
}

TEST_F(MouseTest, onlyLeftDragsInAModeChangeThePicture) {
    const auto look = [this] { return std::pair(state.CurQuat, state.TheView.VolHeight); };
    const auto before = look();
    press(20, 20);
    drag(80, 80);
    EXPECT_EQ(look(), before) << "no mode is chosen";
    EXPECT_FALSE(state.QuickDraw);
    window.run("mnuViewRotate");
    for (const int buttons : {0, mouse_button::right, mouse_button::left + mouse_button::right})
        window.mouseMove(buttons, 90, 90, W, H);
    window.mouseMove(mouse_button::left, 90, 90, 0, 0);
    EXPECT_EQ(look(), before);
    window.mouseDown(mouse_button::right, 20, 20, W, H);
    EXPECT_EQ(poppedUp, "GraphEdit");
    window.mouseMove(mouse_button::left, 1, 0, 1, 1);
    EXPECT_NE(look(), before) << "a picture of one pixel is one still";
    window.run("mnuFileNew3D");
    answers = {platform::Answer::No};
    window.run("mnuFileNew3D");
    const auto empty = look();
    drag(5, 5);
    EXPECT_EQ(look(), empty) << "a new document has no mode";
    EXPECT_TRUE(asked.size() == 2) << "one save question each";
}

}  // namespace
}  // namespace tessaplot::ui

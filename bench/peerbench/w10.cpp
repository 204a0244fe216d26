#include <chrono>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

#include "core/document.h"
#include "core/refresh.h"
#include "gl/offscreen_context.h"
#include "gl/replay.h"
#include "peerbench/lit_surface.h"
#include "peerbench/work.h"

namespace tessaplot::bench {

namespace {

constexpr int width = 1000;
constexpr int height = 800;

/// Drag steps of a lit surface in its frame, off-screen, each finished before the next. The check tells a frame of a
/// full rebuild.
class DragSteps : public Work {
 public:
    DragSteps() {
        const std::filesystem::path document = writeLitSurface();
        int shownHeight = height;
        state_.TheView.SetScreen(width, shownHeight);
        core::LoadDocument(state_, document);
        std::filesystem::remove(document);
        core::fitView(state_);
        draw();
    }

    double run(std::string& check) override {
        state_.QuickDraw = true;
        const double step = time(30, [this] { rebuild(core::SceneChange::Camera); });
        state_.QuickDraw = false;
        const double full = time(10, [this] { rebuild(core::SceneChange::Document); });
        char text[64];
        std::snprintf(text, sizeof text, "full rebuild %.1f ms", full);
        check = text;
        return step;
    }

 private:
    template <class Frame>
    static double time(int frames, Frame&& frame) {
        const auto start = std::chrono::steady_clock::now();
        for (int i = 0; i < frames; ++i)
            frame();
        const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
        return time.count() / frames;
    }

    void rebuild(core::SceneChange change) {
        state_.ShownGraphs.RotYaw += 4;
        core::RebuildScene(state_, change);
        draw();
    }

    void draw() {
        replay_.draw(core::recordDisplay(state_), width, height);
        glFinish();
    }

    gl::OffscreenContext context_;
    gl::Replay replay_;
    core::AppState state_;
};

}  // namespace

std::unique_ptr<Work> makeW10() {
    return std::make_unique<DragSteps>();
}

}  // namespace tessaplot::bench

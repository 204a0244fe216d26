#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

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
/// Of 255, between the strongest and the weakest channel of a pixel that is neither paper nor ink.
constexpr int leastSaturation = 100;

/// Drag steps of a lit surface in its frame, off-screen, each finished before the next. The check tells how much of the
/// picture is coloured, and the time of a frame of a full rebuild.
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
        const double coloured = colouredShare();
        state_.QuickDraw = false;
        const double full = time(10, [this] { rebuild(core::SceneChange::Document); });
        char text[64];
        std::snprintf(text, sizeof text, "%.0f%% coloured, full rebuild %.1f ms", 100 * coloured, full);
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

    double colouredShare() const {
        const std::vector<std::uint8_t> pixels = replay_.readPixels();
        int coloured = 0;
        for (std::size_t i = 0; i < pixels.size(); i += 3) {
            const auto [weakest, strongest] = std::minmax({pixels[i], pixels[i + 1], pixels[i + 2]});
            if (strongest - weakest > leastSaturation) ++coloured;
        }
        return coloured / (static_cast<double>(width) * height);
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

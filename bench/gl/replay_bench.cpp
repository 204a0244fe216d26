// Drawing at 1000 by 800 pixels. Each benchmark takes the replay's steps and those of plain ways in turns, so that a
// load on the machine meets all, and reports medians and bests in milliseconds and the replay's parts of them: `to_...`
// of the time that passed, `work_to_...` of the processor time of all threads.

#include <benchmark/benchmark.h>

#include "gl/offscreen_context.h"
#include "gl/replay.h"
#include "models.h"
#include "plain_way.h"

namespace tessaplot::bench {
namespace {

constexpr int width = 1000;
constexpr int height = 800;
/// The view volume of a scene of ten units that was fitted.
constexpr double volume = 21.2;

enum class Model { Grid, Quads, Markers };

template <class Sink>
void emit(const WavySurface& surface, Model model, Sink& sink) {
    if (model == Model::Grid) surface.emitGrid(sink);
    if (model == Model::Quads) surface.emitQuads(sink);
    if (model == Model::Markers) surface.emitMarkers(sink);
}

gl::DisplayListPtr record(const WavySurface& surface, Model model) {
    auto list = std::make_shared<gl::DisplayList>();
    emit(surface, model, *list);
    return list;
}

/// Where a sample's picture is shifted to, in pixels.
double jitter(int sample, int samples) {
    return (sample + 0.5) / samples - 0.5;
}

/// The frame of a window: light, then a scene list of samples that call the body.
gl::DisplayList frameOf(const gl::DisplayListPtr& body, int samples, float angle) {
    auto scene = std::make_shared<gl::DisplayList>();
    scene->glClear(GL_ACCUM_BUFFER_BIT);
    for (int sample = 0; sample < samples; ++sample) {
        const double shift = jitter(sample, samples) * volume / height;
        scene->glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        scene->glMatrixMode(GL_PROJECTION);
        scene->glLoadIdentity();
        scene->glOrtho(-0.625 * volume + shift, 0.625 * volume + shift, -0.5 * volume + shift, 0.5 * volume + shift,
                       0.001, 2000);
        scene->glMatrixMode(GL_MODELVIEW);
        scene->glLoadIdentity();
        scene->gluLookAt(0, 0, 1000, 0, 0, 0, 0, 1, 0);
        scene->glRotatef(35, 1, 0, 0);
        scene->glRotatef(angle, 0, 1, 0);
        scene->glCallList(body);
        scene->glAccum(GL_ACCUM, 1.0F / static_cast<float>(samples));
    }
    scene->glAccum(GL_RETURN, 1);
    scene->glFlush();
    gl::DisplayList frame;
    frame.glPushMatrix();
    frame.glCallList(scene);
    frame.glPopMatrix();
    frame.glFinish();
    return frame;
}

void placeCamera(int sample, int samples, float angle) {
    const double shift = jitter(sample, samples) * volume / height;
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(-0.625 * volume + shift, 0.625 * volume + shift, -0.5 * volume + shift, 0.5 * volume + shift, 0.001, 2000);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    gluLookAt(0, 0, 1000, 0, 0, 0, 0, 1, 0);
    glRotatef(35, 1, 0, 0);
    glRotatef(angle, 0, 1, 0);
}

void setLight() {
    const std::array<float, 4> one{1, 1, 1, 1};
    const std::array<float, 4> dim{0.2F, 0.2F, 0.2F, 1};
    for (const float side : {1.0F, -1.0F}) {
        const GLenum light = side > 0 ? GL_LIGHT0 : GL_LIGHT1;
        const std::array<float, 4> position{1000 * side, 1000 * side, 1000 * side, 1};
        glLightfv(light, GL_POSITION, position.data());
        glLightfv(light, GL_DIFFUSE, one.data());
        glLightfv(light, GL_SPECULAR, one.data());
        glEnable(light);
    }
    glLightModelfv(GL_LIGHT_MODEL_AMBIENT, dim.data());
    glLightModelf(GL_LIGHT_MODEL_TWO_SIDE, 1);
    glEnable(GL_LIGHTING);
    glEnable(GL_COLOR_MATERIAL);
    glColorMaterial(GL_FRONT_AND_BACK, GL_DIFFUSE);
}

/// Stands for a window's framebuffer.
class Window {
 public:
    Window() : target_(GL_RGBA8, width, height, 0) {}
    GLuint framebuffer() const { return target_.framebuffer(); }

 private:
    gl::ColorTarget target_;
};

/// Milliseconds that passed, and those that all threads together worked: the latter are hardly disturbed by others.
struct Times {
    std::vector<double> passed;
    std::vector<double> worked;

    template <class Work>
    void take(Work&& work) {
        const double clock = seconds(CLOCK_MONOTONIC);
        const double processor = seconds(CLOCK_PROCESS_CPUTIME_ID);
        work();
        worked.push_back(1000 * (seconds(CLOCK_PROCESS_CPUTIME_ID) - processor));
        passed.push_back(1000 * (seconds(CLOCK_MONOTONIC) - clock));
    }

 private:
    static double seconds(clockid_t id) {
        timespec time{};
        clock_gettime(id, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
    }
};

double median(std::vector<double> times) {
    std::sort(times.begin(), times.end());
    return times.empty() ? 0 : times[times.size() / 2];
}

/// The medians of a way, and its part of the replay's.
void report(benchmark::State& state, const std::string& way, const Times& times, const Times& replay) {
    state.counters[way + "_ms"] = median(times.passed);
    state.counters[way + "_best_ms"] = *std::min_element(times.passed.begin(), times.passed.end());
    if (&times == &replay) return;
    state.counters["to_" + way] = median(replay.passed) / median(times.passed);
    state.counters["work_to_" + way] = median(replay.worked) / median(times.worked);
}

/// The ways of drawing that are compared, on one context.
class Contest {
 public:
    Contest(Model model, bool rebuilds, int samples)
        : model_(model), rebuilds_(rebuilds), samples_(samples), body_(record(surface_, model)) {
        setLight();
    }

    void replay() {
        if (rebuilds_) body_ = record(surface_, model_);
        replay_.draw(frameOf(body_, samples_, angle_), width, height);
        replay_.present(window_.framebuffer(), width, height);
        glFinish();
    }
    void plain(PlainWay& way) {
        ImmediateCalls calls;
        way.draw(
            samples_, [this](int sample) { placeCamera(sample, samples_, angle_); },
            [&] { emit(surface_, model_, calls); });
        way.present(window_.framebuffer());
        glFinish();
    }
    void repaint() {
        replay_.draw(frameOfLastStep(), width, height);
        replay_.present(window_.framebuffer(), width, height);
        glFinish();
    }
    void turn() {
        angle_ += 3;
        lastFrame_ = {};
    }
    PlainWay& immediate() { return immediate_; }
    PlainWay& listed() { return listed_; }
    PlainWay& blending() { return blending_; }

 private:
    const gl::DisplayList& frameOfLastStep() {
        if (lastFrame_.empty()) {
            lastFrame_ = frameOf(body_, samples_, angle_);
            replay_.draw(lastFrame_, width, height);
            glFinish();
        }
        return lastFrame_;
    }

    gl::OffscreenContext context_;
    gl::Replay replay_;
    PlainWay immediate_{Habit::Immediate, width, height};
    PlainWay listed_{Habit::Listed, width, height};
    PlainWay blending_{Habit::Blending, width, height};
    Window window_;
    WavySurface surface_;
    Model model_;
    bool rebuilds_;
    int samples_;
    gl::DisplayListPtr body_;
    gl::DisplayList lastFrame_;
    float angle_ = -45;
};

void compareSteps(benchmark::State& state, Model model, bool rebuilds, int samples) {
    Contest contest(model, rebuilds, samples);
    Times replay;
    Times immediate;
    Times listed;
    Times blending;
    contest.replay();
    for (PlainWay* way : {&contest.immediate(), &contest.listed(), &contest.blending()})
        contest.plain(*way);
    for ([[maybe_unused]] const auto step : state) {
        contest.turn();
        replay.take([&] { contest.replay(); });
        immediate.take([&] { contest.plain(contest.immediate()); });
        listed.take([&] { contest.plain(contest.listed()); });
        blending.take([&] { contest.plain(contest.blending()); });
    }
    report(state, "replay", replay, replay);
    report(state, "immediate", immediate, replay);
    report(state, "listed", listed, replay);
    report(state, "blending", blending, replay);
}

void repaint(benchmark::State& state) {
    Contest contest(Model::Grid, false, 2);
    Times drag;
    Times repaint;
    for ([[maybe_unused]] const auto step : state) {
        contest.turn();
        drag.take([&] { contest.replay(); });
        contest.repaint();
        repaint.take([&] { contest.repaint(); });
    }
    report(state, "repaint", repaint, repaint);
    report(state, "drag_step", drag, repaint);
}

BENCHMARK_CAPTURE(compareSteps, grid_drag_step, Model::Grid, false, 2)->Iterations(60);
BENCHMARK_CAPTURE(compareSteps, grid_full_rebuild, Model::Grid, true, 8)->Iterations(20);
BENCHMARK_CAPTURE(compareSteps, quads_drag_step, Model::Quads, false, 2)->Iterations(60);
BENCHMARK_CAPTURE(compareSteps, quads_full_rebuild, Model::Quads, true, 8)->Iterations(20);
BENCHMARK_CAPTURE(compareSteps, markers_drag_step, Model::Markers, false, 2)->Iterations(5);
BENCHMARK_CAPTURE(compareSteps, markers_full_rebuild, Model::Markers, true, 8)->Iterations(3);
BENCHMARK(repaint)->Iterations(60);

}  // namespace
}  // namespace tessaplot::bench

BENCHMARK_MAIN();

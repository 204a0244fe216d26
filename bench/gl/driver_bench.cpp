// What the driver itself can do at 1000 by 800 pixels: the ground that a replay stands on.

#include <array>
#include <vector>

#include <benchmark/benchmark.h>

#include "gl/color_target.h"
#include "gl/gl_calls.h"
#include "gl/offscreen_context.h"

namespace tessaplot::bench {
namespace {

constexpr int width = 1000;
constexpr int height = 800;

/// A picture with a depth buffer in a context of its own, and the matrices for coordinates in pixels.
class Ground {
 public:
    Ground() : depth_(makeDepth()), target_(GL_RGBA8, width, height, depth_) {
        target_.bind();
        glViewport(0, 0, width, height);
        glMatrixMode(GL_PROJECTION);
        glOrtho(0, width, 0, height, -1, 1);
        glEnable(GL_DEPTH_TEST);
        glDepthFunc(GL_LEQUAL);
        glEnableClientState(GL_VERTEX_ARRAY);
        glEnableClientState(GL_COLOR_ARRAY);
    }

 private:
    static GLuint makeDepth() {
        GLuint depth = 0;
        glGenRenderbuffers(1, &depth);
        glBindRenderbuffer(GL_RENDERBUFFER, depth);
        glRenderbufferStorage(GL_RENDERBUFFER, GL_DEPTH_COMPONENT24, width, height);
        return depth;
    }

    gl::OffscreenContext context_;
    GLuint depth_;
    gl::ColorTarget target_;
};

/// Right triangles of `side` pixels, as many as the picture holds beside each other, smoothly coloured.
void drawTriangles(benchmark::State& state) {
    const Ground ground;
    const auto side = static_cast<int>(state.range(0));
    std::vector<float> vertices;
    for (int y = 0; y + side <= height; y += side)
        for (int x = 0; x + side <= width; x += side)
            for (const auto& [right, up] : {std::array{0, 0}, std::array{side, 0}, std::array{0, side}})
                vertices.insert(vertices.end(), {static_cast<float>(x + right), static_cast<float>(y + up), 0, 0.5F,
                                                 static_cast<float>(x) / width, static_cast<float>(y) / height});
    constexpr GLsizei stride = 6 * sizeof(float);
    const auto count = static_cast<GLsizei>(vertices.size() / 6);
    glVertexPointer(3, GL_FLOAT, stride, vertices.data());
    glColorPointer(3, GL_FLOAT, stride, &vertices[3]);
    const auto draw = [count] {
        glDrawArrays(GL_TRIANGLES, 0, count);
        glFinish();
    };
    draw();
    for ([[maybe_unused]] const auto step : state)
        draw();
    const double triangles = count / 3.0;
    state.counters["triangles"] = benchmark::Counter(triangles, benchmark::Counter::kIsIterationInvariantRate);
    state.counters["pixels"] =
        benchmark::Counter(triangles * side * side / 2, benchmark::Counter::kIsIterationInvariantRate);
}

void clearPicture(benchmark::State& state) {
    const Ground ground;
    for ([[maybe_unused]] const auto step : state) {
        glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        glFinish();
    }
    state.counters["pixels"] =
        benchmark::Counter(double{width} * height, benchmark::Counter::kIsIterationInvariantRate);
}

BENCHMARK(drawTriangles)->Arg(4)->Arg(8)->Arg(32)->Arg(200)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(clearPicture)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tessaplot::bench

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <functional>
#include <limits>

#include <malloc.h>
#include <unistd.h>

#include "core/refresh.h"
#include "gl/offscreen_context.h"
#include "gl/replay.h"
#include "pictures/picture_reader.h"
#include "ui/main_window.h"

/// Tells whether memory grows while a person works for long: 10,000 steps of a drag, 1,000 opened documents, each
/// drawn. The status is 1 if the last nine tenths of either need more than a little.
namespace {

using namespace tessaplot;

constexpr int width = 199;
constexpr int height = 160;
constexpr int steps = 10'000;
constexpr int documents = 1'000;
constexpr double mostGrowth = 4;  ///< MiB.

double residentMebibytes() {
    malloc_trim(0);
    long pages = 0;
    std::ifstream statm("/proc/self/statm");
    statm >> pages >> pages;
    return static_cast<double>(pages) * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1024 * 1024);
}

/// The program without its window.
struct Program {
    core::AppState state;
    ui::frmF1 form{state};
    gl::OffscreenContext context;
    gl::Replay replay;
    std::filesystem::path next;  ///< What the user chooses to open.

    Program() {
        state.desktop.display = [this] { replay.draw(core::recordDisplay(state), width, height); };
        state.desktop.loadPicture = pictures::readPicture;
        state.desktop.ask = [](const platform::Message&) { return platform::Answer::No; };
        state.desktop.chooseFile = [this](const platform::FileQuestion&) {
            return std::optional(platform::FileChoice{next.string(), 1});
        };
        form.resizePicture(width, height);
        form.load({});
    }

    void open(const char* sample) {
        next = std::filesystem::path(TESSAPLOT_SAMPLES) / sample;
        form.run("mnuFileOpen");
        state.desktop.displayPicture();
    }
};

/// Does the work `count` times; false if memory grows after the first tenth. Lists that are no longer drawn are dropped
/// now and then, so that the least of several looks counts.
bool measure(const char* name, int count, const std::function<void(int)>& work) {
    const double before = residentMebibytes();
    const int tenth = count / 10;
    std::array<double, 10> least;
    least.fill(std::numeric_limits<double>::infinity());
    for (int i = 0; i < count; ++i) {
        work(i);
        if (i % (tenth / 10) != 0) continue;
        double& here = least[static_cast<std::size_t>(i / tenth)];
        here = std::min(here, residentMebibytes());
    }
    std::printf("%-10s %6d times: %.1f MiB before, %.1f in the first tenth, %.1f in the last\n", name, count, before,
                least.front(), least.back());
    return least.back() - least.front() <= mostGrowth;
}

}  // namespace

int main() {
    Program program;
    program.open("surface_rg.tsp");
    program.form.run("mnuViewRotate");
    program.form.mouseDown(1, width / 2.0, height / 2.0, width, height);
    const bool drags = measure("drag step", steps, [&](int i) {
        program.form.mouseMove(1, width * (0.5 + 0.4 * std::sin(i * 0.1)), height * (0.5 + 0.4 * std::cos(i * 0.13)),
                               width, height);
    });
    program.form.mouseUp();

    constexpr std::array samples{"surface_rg.tsp", "delaunay.tsp", "sphere.tsp", "surface_colormap.tsp"};
    const bool opens = measure("document", documents,
                               [&](int i) { program.open(samples[static_cast<std::size_t>(i) % samples.size()]); });
    return drags && opens ? 0 : 1;
}

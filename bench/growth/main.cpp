// Measures what the cost of each routine is against its size, up to the limit that the program sets, and prints a table
// in Markdown. The exponent is the slope of a least-squares line through the logarithms of size and time, over the
// upper half of the sizes. Arguments choose the routines whose names contain one of them.

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <string_view>

#include "growth/routine.h"

namespace tessaplot::bench {

namespace {

constexpr int sizeCount = 8;
constexpr double longestRun = 4;  // Seconds; a routine that comes to this is not asked for more.

struct Measurement {
    double size;
    double seconds;
};

/// The shortest of some runs: a load on the machine only ever adds.
double secondsOf(const std::function<void()>& work) {
    double shortest = HUGE_VAL;
    double spent = 0;
    for (int run = 0; run < 3 || (spent < 0.2 && run < 1000); ++run) {
        const auto start = std::chrono::steady_clock::now();
        work();
        const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        shortest = std::min(shortest, seconds);
        spent += seconds;
        if (spent > longestRun) break;
    }
    return shortest;
}

std::vector<Measurement> measure(const Routine& routine) {
    std::vector<Measurement> measured;
    const double ratio = static_cast<double>(routine.limit) / static_cast<double>(routine.smallest);
    for (int i = 0; i < sizeCount; ++i) {
        const double share = static_cast<double>(i) / (sizeCount - 1);
        const std::int64_t size = std::llround(static_cast<double>(routine.smallest) * std::pow(ratio, share));
        measured.push_back({static_cast<double>(size), secondsOf(routine.prepare(size))});
        if (measured.back().seconds > longestRun) break;
    }
    return measured;
}

double exponentOf(const std::vector<Measurement>& measured) {
    double count = 0, x = 0, y = 0, xx = 0, xy = 0;
    for (std::size_t i = measured.size() / 2; i < measured.size(); ++i) {
        const double size = std::log(measured[i].size);
        const double time = std::log(measured[i].seconds);
        count += 1;
        x += size;
        y += time;
        xx += size * size;
        xy += size * time;
    }
    return count > 1 ? (count * xy - x * y) / (count * xx - x * x) : 0;
}

void report(const Routine& routine) {
    const std::vector<Measurement> measured = measure(routine);
    const Measurement& middle = measured[measured.size() / 2];
    const Measurement& last = measured.back();
    const bool stopped = last.size < static_cast<double>(routine.limit);
    std::printf("| %s | %s | %.0f | %.3g ms | %.0f%s | %.3g ms | %s | %.2f |\n", routine.name.c_str(),
                routine.size.c_str(), middle.size, 1e3 * middle.seconds, last.size, stopped ? " (stopped)" : "",
                1e3 * last.seconds, routine.expected.c_str(), exponentOf(measured));
    std::fflush(stdout);
}

}  // namespace

}  // namespace tessaplot::bench

int main(int argc, char** argv) {
    std::printf("| Routine | Size | In the middle | Time | Largest | Time | Expected exponent | Measured |\n");
    std::printf("|---|---|---|---|---|---|---|---|\n");
    for (const tessaplot::bench::Routine& routine : tessaplot::bench::routines()) {
        const auto isAskedFor = [&](std::string_view part) { return routine.name.find(part) != std::string::npos; };
        if (argc < 2 || std::any_of(argv + 1, argv + argc, isAskedFor)) tessaplot::bench::report(routine);
    }
    return 0;
}

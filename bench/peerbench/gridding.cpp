#include "peerbench/gridding.h"

#include <chrono>
#include <cstdio>

#include "peerbench/surface_input.h"

namespace tessaplot::bench {

namespace {

/// A gridding run of all nodes, value and colour.
class Gridding : public Work {
 public:
    Gridding(std::uint64_t seed, std::size_t points, int steps, int method)
        : input_(scatteredPoints(seed, points), steps), method_(method) {}

    double run(std::string& check) override {
        const auto start = std::chrono::steady_clock::now();
        input_.grid(method_);
        const std::chrono::duration<double, std::milli> spent = std::chrono::steady_clock::now() - start;
        char text[80];
        std::snprintf(text, sizeof text, "rms %.6f %.6f", input_.rootMeanSquare(input_.heights()),
                      input_.rootMeanSquare(input_.colours()));
        check = text;
        return spent.count();
    }

 private:
    SurfaceInput input_;
    int method_;
};

}  // namespace

std::unique_ptr<Work> makeW1() {
    return std::make_unique<Gridding>(1001, 10000, 100, 2);
}

std::unique_ptr<Work> makeW2() {
    return std::make_unique<Gridding>(1002, 20000, 200, 1);
}

std::unique_ptr<Work> makeW3() {
    return std::make_unique<Gridding>(1003, 500, 100, 3);
}

std::unique_ptr<Work> makeW4() {
    return std::make_unique<Gridding>(1004, 497, 100, 4);
}

}  // namespace tessaplot::bench

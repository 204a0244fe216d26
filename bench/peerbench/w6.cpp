#include <chrono>
#include <cmath>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "geometry/contour.h"
#include "peerbench/work.h"

namespace tessaplot::bench {

std::unique_ptr<Work> makeW6();

namespace {

constexpr int side = geometry::maxContourNodes;
constexpr double spacing = 20.0 / (side - 1);
/// Levels lie on multiples of their interval, those of the comparison halfway between.
constexpr double interval = 0.2;
constexpr double raised = interval / 2;

/// The lines of a wavy field of 500x500 nodes at the levels -1.9, -1.7, ... 1.9; the outermost two of these 20 meet no
/// value and are not asked for. A run nudges a fresh copy of the values.
class ContourWork : public Work {
 public:
    ContourWork() {
        const auto at = [](int k) { return -10 + spacing * k; };
        for (int i = 0; i < side; ++i)
            for (int j = 0; j < side; ++j)
                values_.push_back(std::sin(at(j)) * std::cos(at(i)) + 0.1 * at(j) + raised);
    }

    double run(std::string& check) override {
        std::vector<double> values = values_;
        const geometry::ContourGrid grid = {side, side, spacing, spacing, -10 - spacing, -10 - spacing, values, side};
        geometry::ContourOptions options;
        options.interval = interval;
        const auto start = std::chrono::steady_clock::now();
        const geometry::ContourLines<geometry::PlanePoint> lines = geometry::CContour::Contour(grid, options);
        const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
        check = std::to_string(lines.levels.size()) + " levels, " + std::to_string(lines.segments.size()) + " segments";
        return taken.count();
    }

 private:
    std::vector<double> values_;
};

}  // namespace

std::unique_ptr<Work> makeW6() {
    return std::make_unique<ContourWork>();
}

}  // namespace tessaplot::bench

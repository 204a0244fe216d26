#include <algorithm>
#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "geometry/delaunay.h"
#include "peerbench/gen.h"
#include "peerbench/work.h"

namespace tessaplot::bench {

std::unique_ptr<Work> makeW5();

namespace {

constexpr std::size_t points = 4900;
constexpr std::uint64_t seed = 1005;

/// The triangulation of 4,900 scattered points.
class TriangulationWork : public Work {
 public:
    TriangulationWork() : x_(points + 4), y_(points + 4) {
        const Points scattered = scatteredPoints(seed, points);
        std::copy(scattered.x.begin(), scattered.x.end(), x_.begin() + 1);
        std::copy(scattered.y.begin(), scattered.y.end(), y_.begin() + 1);
    }

    double run(std::string& check) override {
        const auto start = std::chrono::steady_clock::now();
        const geometry::Triangulation result = geometry::Triangulate(points, x_, y_);
        const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
        check = std::to_string(result.triangles.size()) + " triangles";
        return taken.count();
    }

 private:
    std::vector<double> x_;
    std::vector<double> y_;
};

}  // namespace

std::unique_ptr<Work> makeW5() {
    return std::make_unique<TriangulationWork>();
}

}  // namespace tessaplot::bench

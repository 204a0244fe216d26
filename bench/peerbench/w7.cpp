#include <chrono>
#include <cmath>
#include <cstddef>
#include <memory>
#include <string>

#include "base/checked_array.h"
#include "geometry/iso_surface.h"
#include "peerbench/work.h"

namespace tessaplot::bench {

std::unique_ptr<Work> makeW7();

namespace {

constexpr int highest = 100;
constexpr double level = 0.85;

double valueAt(double x, double y, double z) {
    return std::sqrt(x * x + y * y + z * z) + 0.05 * std::sin(6 * x) * std::sin(6 * y) * std::sin(6 * z);
}

/// The iso-surface of a dented ball in a volume of 101 nodes along each axis.
class IsoSurfaceWork : public Work {
 public:
    IsoSurfaceWork() {
        for (auto* array : {&x_, &y_, &z_, &v_})
            array->allocate(highest, highest, highest);
        for (int k = 0; k <= highest; ++k)
            for (int j = 0; j <= highest; ++j)
                for (int i = 0; i <= highest; ++i)
                    setNode(i, j, k);
    }

    double run(std::string& check) override {
        const auto start = std::chrono::steady_clock::now();
        const geometry::IsoMesh mesh = geometry::IsoSurface(highest, highest, highest, x_, y_, z_, v_, level);
        const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
        check =
            std::to_string(mesh.triangles.size()) + " triangles, " + std::to_string(mesh.vertices.size()) + " points";
        return taken.count();
    }

 private:
    void setNode(int i, int j, int k) {
        x_(i, j, k) = -1 + 2.0 * i / highest;
        y_(i, j, k) = -1 + 2.0 * j / highest;
        z_(i, j, k) = -1 + 2.0 * k / highest;
        v_(i, j, k) = valueAt(x_(i, j, k), y_(i, j, k), z_(i, j, k));
    }

    base::CheckedArray<double> x_{"x"}, y_{"y"}, z_{"z"}, v_{"v"};
};

}  // namespace

std::unique_ptr<Work> makeW7() {
    return std::make_unique<IsoSurfaceWork>();
}

}  // namespace tessaplot::bench

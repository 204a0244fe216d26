#include "peerbench/surface_input.h"

#include <utility>

namespace tessaplot::bench {

SurfaceInput::SurfaceInput(Points points, int steps) : points_(std::move(points)), steps_(steps) {
    const auto elements = static_cast<std::size_t>(steps + 1) * static_cast<std::size_t>(steps + 1);
    for (std::vector<double>* column : {&x_, &y_, &z_, &c_})
        column->assign(elements, 0);
}

numerics::ScatteredSurface SurfaceInput::view() const {
    numerics::ScatteredSurface surface;
    surface.x = points_.x;
    surface.y = points_.y;
    surface.z = points_.z;
    surface.c = points_.c;
    surface.MinX = surface.MinY = -10;
    surface.MaxX = surface.MaxY = 10;
    surface.StepsX = surface.StepsY = steps_;
    surface.applicationPoints = surface.Points();
    return surface;
}

void SurfaceInput::grid(int method) {
    numerics::gridSurface(view(), method, {}, {.x = x_, .y = y_, .z = z_, .c = c_, .a = {}, .b = {}, .d = {}});
}

double SurfaceInput::rootMeanSquare(const std::vector<double>& column) const {
    double sum = 0;
    for (int j = 0; j < steps_; ++j)
        for (int i = 0; i < steps_; ++i) {
            const double value = column[static_cast<std::size_t>(i) +
                                        static_cast<std::size_t>(steps_ + 1) * static_cast<std::size_t>(j)];
            sum += value * value;
        }
    return std::sqrt(sum / (static_cast<double>(steps_) * steps_));
}

}  // namespace tessaplot::bench

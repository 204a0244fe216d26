#include "gl/drawn_area.h"

#include <algorithm>
#include <cmath>

#include "gl/gl_calls.h"

namespace tessaplot::gl {

namespace {

/// Beyond the half width: smooth edges and rounding.
constexpr double extraPixels = 3;

}  // namespace

void DrawnArea::readPlacement() {
    std::array<double, 16> view{};
    std::array<double, 16> projection{};
    glGetDoublev(GL_MODELVIEW_MATRIX, view.data());
    glGetDoublev(GL_PROJECTION_MATRIX, projection.data());
    glGetDoublev(GL_VIEWPORT, viewport_.data());
    glGetDoublev(GL_LINE_WIDTH, &margin_);
    margin_ += extraPixels;
    for (std::size_t column = 0; column < 4; ++column) {
        for (std::size_t row = 0; row < 4; ++row) {
            double sum = 0;
            for (std::size_t k = 0; k < 4; ++k)
                sum += projection[4 * k + row] * view[4 * column + k];
            toClip_[4 * column + row] = sum;
        }
    }
    placementKnown_ = true;
}

void DrawnArea::include(const Bounds& bounds) {
    if (all_) return;
    if (!placementKnown_) readPlacement();
    for (unsigned corner = 0; corner < 8; ++corner) {
        std::array<double, 3> p{};
        for (std::size_t k = 0; k < 3; ++k)
            p[k] = (corner >> k & 1U) != 0 ? bounds.high[k] : bounds.low[k];
        const auto clip = [&](std::size_t row) {
            return toClip_[row] * p[0] + toClip_[4 + row] * p[1] + toClip_[8 + row] * p[2] + toClip_[12 + row];
        };
        const double w = clip(3);
        const double x = viewport_[0] + (clip(0) / w + 1) / 2 * viewport_[2];
        const double y = viewport_[1] + (clip(1) / w + 1) / 2 * viewport_[3];
        // Corners behind the eye, or nowhere, tell nothing.
        if (!(w > 0) || !std::isfinite(x) || !std::isfinite(y)) {
            all_ = true;
            return;
        }
        box_ = {std::min(box_[0], x - margin_), std::min(box_[1], y - margin_), std::max(box_[2], x + margin_),
                std::max(box_[3], y + margin_)};
    }
}

PixelArea DrawnArea::within(int width, int height) const {
    if (all_) return {0, 0, width, height};
    const auto pixel = [](double edge, int end) { return static_cast<int>(std::clamp(edge, 0.0, double{1} * end)); };
    return {pixel(std::floor(box_[0]), width), pixel(std::floor(box_[1]), height), pixel(std::ceil(box_[2]), width),
            pixel(std::ceil(box_[3]), height)};
}

}  // namespace tessaplot::gl

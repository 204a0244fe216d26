#include "gl/drawn_area.h"

#include <algorithm>
#include <cmath>

#include "gl/gl_calls.h"

namespace tessaplot::gl {

namespace {

/// Beyond the half width: smooth edges and rounding.
constexpr double extraPixels = 3;

constexpr unsigned corners = 8;

// Matrices in the order of glMultMatrixf.
using Matrix = std::array<double, 16>;

Matrix product(const Matrix& left, const Matrix& right) {
    Matrix result{};
    for (std::size_t column = 0; column < 4; ++column)
        for (std::size_t row = 0; row < 4; ++row)
            for (std::size_t k = 0; k < 4; ++k)
                result[4 * column + row] += left[4 * k + row] * right[4 * column + k];
    return result;
}

double determinant(const Matrix& m) {
    const auto minor = [&m](std::size_t a, std::size_t b, std::size_t rowA, std::size_t rowB) {
        return m[4 * a + rowA] * m[4 * b + rowB] - m[4 * b + rowA] * m[4 * a + rowB];
    };
    const auto upper = [&minor](std::size_t a, std::size_t b) { return minor(a, b, 0, 1); };
    const auto lower = [&minor](std::size_t a, std::size_t b) { return minor(a, b, 2, 3); };
    return upper(0, 1) * lower(2, 3) - upper(0, 2) * lower(1, 3) + upper(0, 3) * lower(1, 2) +
           upper(1, 2) * lower(0, 3) - upper(1, 3) * lower(0, 2) + upper(2, 3) * lower(0, 1);
}

}  // namespace

void DrawnArea::readPlacement() {
    std::array<double, 16> view{};
    std::array<double, 16> projection{};
    glGetDoublev(GL_MODELVIEW_MATRIX, view.data());
    glGetDoublev(GL_PROJECTION_MATRIX, projection.data());
    glGetDoublev(GL_VIEWPORT, viewport_.data());
    glGetDoublev(GL_LINE_WIDTH, &margin_);
    margin_ += extraPixels;
    toClip_ = product(projection, view);
    // Depth grows away from the eye, so that a projection by itself turns space inside out.
    mirrors_ = !(determinant(projection) < 0 && determinant(view) > 0);
    placementKnown_ = true;
}

double DrawnArea::clipCoordinate(std::size_t row, const Bounds& bounds, unsigned corner) const {
    double sum = toClip_[12 + row];
    for (std::size_t k = 0; k < 3; ++k)
        sum += toClip_[4 * k + row] * ((corner >> k & 1U) != 0 ? bounds.high[k] : bounds.low[k]);
    return sum;
}

bool DrawnArea::showsOutside(const Bounds& bounds) {
    if (!placementKnown_) readPlacement();
    if (mirrors_) return false;
    for (unsigned corner = 0; corner < corners; ++corner)
        if (!(clipCoordinate(2, bounds, corner) > -clipCoordinate(3, bounds, corner))) return false;
    return true;
}

void DrawnArea::include(const Bounds& bounds) {
    if (all_) return;
    if (!placementKnown_) readPlacement();
    for (unsigned corner = 0; corner < corners; ++corner) {
        const double w = clipCoordinate(3, bounds, corner);
        const double x = viewport_[0] + (clipCoordinate(0, bounds, corner) / w + 1) / 2 * viewport_[2];
        const double y = viewport_[1] + (clipCoordinate(1, bounds, corner) / w + 1) / 2 * viewport_[3];
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

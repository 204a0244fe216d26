#include "gl/affine.h"

#include <cmath>
#include <numbers>

namespace tessaplot::gl {

namespace {

constexpr double shortestAxis = 1e-4;

}  // namespace

void Affine::translate(double x, double y, double z) {
    for (std::size_t row = 0; row < 3; ++row)
        offset_[row] += linear_[3 * row] * x + linear_[3 * row + 1] * y + linear_[3 * row + 2] * z;
}

void Affine::rotate(double degrees, double x, double y, double z) {
    const double length = std::sqrt(x * x + y * y + z * z);
    if (!(length > shortestAxis)) return;
    x /= length;
    y /= length;
    z /= length;
    const double angle = degrees * std::numbers::pi / 180;
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    const double k = 1 - c;
    multiplyLinear({k * x * x + c, k * x * y - s * z, k * x * z + s * y, k * x * y + s * z, k * y * y + c,
                    k * y * z - s * x, k * x * z - s * y, k * y * z + s * x, k * z * z + c});
}

void Affine::scale(double x, double y, double z) {
    multiplyLinear({x, 0, 0, 0, y, 0, 0, 0, z});
}

void Affine::multiply(std::span<const double, 16> matrix) {
    translate(matrix[12], matrix[13], matrix[14]);
    multiplyLinear(
        {matrix[0], matrix[4], matrix[8], matrix[1], matrix[5], matrix[9], matrix[2], matrix[6], matrix[10]});
}

void Affine::multiplyLinear(const std::array<double, 9>& right) {
    const std::array<double, 9> left = linear_;
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column)
            linear_[3 * row + column] = left[3 * row] * right[column] + left[3 * row + 1] * right[3 + column] +
                                        left[3 * row + 2] * right[6 + column];
    }
}

std::array<double, 9> Affine::cofactors() const {
    const std::array<double, 9>& m = linear_;
    return {m[4] * m[8] - m[5] * m[7], m[5] * m[6] - m[3] * m[8], m[3] * m[7] - m[4] * m[6],
            m[2] * m[7] - m[1] * m[8], m[0] * m[8] - m[2] * m[6], m[1] * m[6] - m[0] * m[7],
            m[1] * m[5] - m[2] * m[4], m[2] * m[3] - m[0] * m[5], m[0] * m[4] - m[1] * m[3]};
}

double Affine::determinant() const {
    const std::array<double, 9> c = cofactors();
    return linear_[0] * c[0] + linear_[1] * c[1] + linear_[2] * c[2];
}

bool Affine::mirrors() const {
    return !(determinant() > 0);
}

std::optional<Affine> Affine::forNormals() const {
    const double volume = determinant();
    if (volume == 0 || !std::isfinite(volume)) return std::nullopt;
    Affine normals;
    normals.linear_ = cofactors();
    for (double& number : normals.linear_)
        number /= volume;
    return normals;
}

bool isAffine(std::span<const double> matrix) {
    return matrix[3] == 0 && matrix[7] == 0 && matrix[11] == 0 && matrix[15] == 1;
}

}  // namespace tessaplot::gl

#pragma once

#include <array>
#include <optional>
#include <span>

namespace tessaplot::gl {

using Vector3f = std::array<float, 3>;

/// An affine transformation of space, the product of what glTranslatef and its like multiply to a matrix.
class Affine {
 public:
    void translate(double x, double y, double z);
    /// As glRotatef does, an axis of (nearly) no length leaves things as they are.
    void rotate(double degrees, double x, double y, double z);
    void scale(double x, double y, double z);
    /// `matrix` in the order of glMultMatrixf, with a last row of 0, 0, 0, 1.
    void multiply(std::span<const double, 16> matrix);

    /// True if directions stay: nothing but a translation.
    bool keepsDirections() const { return linear_ == identity; }
    bool isIdentity() const { return keepsDirections() && offset_ == std::array<double, 3>{}; }

    /// True if it turns shapes into their mirror images, or makes them flat.
    bool mirrors() const;

    Vector3f point(const Vector3f& p) const { return {row(0, p), row(1, p), row(2, p)}; }
    /// As `point`, for a transformation that keeps directions.
    Vector3f moved(const Vector3f& p) const {
        return {static_cast<float>(p[0] + offset_[0]), static_cast<float>(p[1] + offset_[1]),
                static_cast<float>(p[2] + offset_[2])};
    }
    /// What turns normals: the inverse transpose of the linear part, without an offset; none if that is singular.
    std::optional<Affine> forNormals() const;

 private:
    static constexpr std::array<double, 9> identity{1, 0, 0, 0, 1, 0, 0, 0, 1};
    void multiplyLinear(const std::array<double, 9>& right);
    std::array<double, 9> cofactors() const;
    double determinant() const;
    float row(std::size_t r, const Vector3f& p) const {
        return static_cast<float>(linear_[3 * r] * p[0] + linear_[3 * r + 1] * p[1] + linear_[3 * r + 2] * p[2] +
                                  offset_[r]);
    }

    std::array<double, 9> linear_ = identity;  ///< Row by row.
    std::array<double, 3> offset_{};
};

/// True if a matrix in the order of glMultMatrixf has a last row of 0, 0, 0, 1.
bool isAffine(std::span<const double> matrix);

}  // namespace tessaplot::gl

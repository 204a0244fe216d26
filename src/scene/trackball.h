#pragma once

#include <array>

namespace tessaplot::scene {

/// Vectors and quaternions as arrays with index from 0; quaternions are ordered x, y, z, w.
using Vector3 = std::array<double, 3>;
using Quaternion = std::array<double, 4>;
/// Sixteen entries in the order in which glMultMatrixf reads them.
using Matrix16 = std::array<float, 16>;

inline constexpr double TrackballRadius = 0.5;

/// How a rotation drag is constrained; the axes are those of the user, whose X runs along scene z, Y along scene x and
/// Z along scene y.
enum class RotateMode { None = 0, Free = 1, AboutX = 2, AboutY = 3, AboutZ = 4 };

Vector3 VecSub(const Vector3& a, const Vector3& b);
Vector3 VecAdd(const Vector3& a, const Vector3& b);
Vector3 VecCross(const Vector3& a, const Vector3& b);
double VecLength(const Vector3& v);
Vector3 VecScale(const Vector3& v, double s);
/// `v` times 1 over its length. Throws DivisionByZero for length 0.
Vector3 VecNormal(const Vector3& v);
double VecDot(const Vector3& a, const Vector3& b);

/// Height of the pointer over a trackball of radius `r`: a sphere in the middle, a hyperbola round it that is almost
/// flat. x and y run from -1 to 1 over the surface.
double ProjectToSphere(double r, double x, double y);
/// The rotation by `phi` radians about `axis`. Throws DivisionByZero for an axis of length 0.
Quaternion AxisToQuat(const Vector3& axis, double phi);
/// The rotation of a drag from (x1, y1) to (x2, y2), each from -1 to 1 over the surface with y upward; no movement is
/// the identity. `mode` must not be None.
Quaternion Trackball(RotateMode mode, double x1, double y1, double x2, double y2);
/// `q1` composed with `q2`, normalised: the matrix of the result is the matrix of `q1` times that of `q2`, so that in
/// the scene `q1` turns what `q2` has turned.
Quaternion AddQuats(const Quaternion& q1, const Quaternion& q2);
/// `q` over its magnitude; four zeros stay.
Quaternion NormalizeQuat(const Quaternion& q);
Matrix16 BuildRotMatrix(const Quaternion& q);

/// The rotation of the scene by a group's angles in degrees.
Quaternion quatFromAngles(double rotRoll, double rotPitch, double rotYaw);

/// The arc sine for x above -1. Throws DivisionByZero at -1.
double ArcSin(double x);
/// The arc tangent form of the arc cosine: negative for a negative `x`. An `x` of exactly 0 becomes 1e-7.
double ArcCos(double& x);

}  // namespace tessaplot::scene

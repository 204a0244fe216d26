#include "scene/view.h"

#include <algorithm>
#include <cmath>

#include "base/failure.h"
#include "scene/trackball.h"

namespace tessaplot::scene {

namespace {

Vector3 positionOf(const Cls2& point) {
    return {point.x, point.y, point.z};
}

void place(Cls2& point, const Vector3& position) {
    point.x = position[0];
    point.y = position[1];
    point.z = position[2];
}

/// Where the eye of a standard direction stands, for a distance of 1, and its up vector.
struct StandardDirection {
    Vector3 eye;
    Vector3 up;
};

constexpr std::array<StandardDirection, 6> axisDirections{{
    {{0, 0, 1}, {0, 1, 0}},
    {{0, 0, -1}, {0, 1, 0}},
    {{0, 1, 0}, {0, 0, 1}},
    {{0, -1, 0}, {0, 0, 1}},
    {{1, 0, 0}, {0, 1, 0}},
    {{-1, 0, 0}, {0, 1, 0}},
}};

/// Signs of the eye's offset for the diagonal directions 7 to 10.
constexpr std::array<Vector3, 4> diagonalDirections{{{-1, 1, -1}, {1, -1, 1}, {1, 1, 1}, {-1, 1, 1}}};

/// The viewport's width as the jitter divides by it.
double jitterDivisor(int viewportWidth) {
    return static_cast<double>(static_cast<float>(viewportWidth));
}

}  // namespace

void Cls4::GetViewRect(double& w, double& h) const {
    w = VolWidth;
    h = VolHeight;
}

void Cls4::SetViewRect(double, double h) {
    VolHeight = h;
    VolWidth = ScreenWidth / ScreenHeight * h;
}

void Cls4::SetVecup(double x, double y, double z) {
    VecUp = {x, y, z};
}

void Cls4::SetRef(double x, double y, double z) {
    place(RefPos, {x, y, z});
}

void Cls4::SetEye(double x, double y, double z) {
    place(EyePos, {x, y, z});
}

void Cls4::SetScreen(int width, int& height) {
    viewportWidth_ = width;
    viewportHeight_ = height;
    if (height == 0) height = 1;
    ScreenWidth = width;
    ScreenHeight = height;
}

void Cls4::MoveView(double dx, double dy) {
    const Vector3 d = direction();
    const Vector3 s = VecCross(d, VecUp);
    const Vector3 t = VecCross(s, d);
    Vector3 shift{};
    for (std::size_t i = 0; i < 3; ++i)
        shift[i] = s[i] * VolWidth * dx + t[i] * VolHeight * dy;
    place(EyePos, VecSub(positionOf(EyePos), shift));
    place(RefPos, VecSub(positionOf(RefPos), shift));
}

void Cls4::SetViewType(int type) {
    double distance = VecLength(VecSub(positionOf(EyePos), positionOf(RefPos)));
    if (distance == 0) distance = 50;
    if (distance > 30000) distance = 10000;
    if (type < 1 || type > 10) return;
    if (type <= 6) {
        const StandardDirection& standard = axisDirections[static_cast<std::size_t>(type) - 1];
        place(EyePos, VecAdd(positionOf(RefPos), VecScale(standard.eye, distance)));
        VecUp = standard.up;
    } else {
        const double side = distance * (1 / std::sqrt(3.0));
        place(EyePos,
              VecAdd(positionOf(RefPos), VecScale(diagonalDirections[static_cast<std::size_t>(type) - 7], side)));
        ResetUpVector();
    }
}

void Cls4::ZoomAll(double minX, double minY, double minZ, double maxX, double maxY, double maxZ, int sceneMode) {
    const bool flat = sceneMode == mode2D;
    double size = std::max(maxX - minX, maxZ - minZ);
    if (!flat) size = std::max(size, maxY - minY);
    SetViewRect(size, size);

    Vector3 d = VecSub(positionOf(RefPos), positionOf(EyePos));
    Vector3 center{(minX + maxX) / 2, (minY + maxY) / 2, (minZ + maxZ) / 2};
    if (flat) d[1] = center[1] = 0;
    place(RefPos, center);
    place(EyePos, VecSub(center, d));
}

void Cls4::RotateView(double angle, double ax, double ay, double az) {
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    const double k = 1 - c;
    const Vector3 v = VecSub(positionOf(RefPos), positionOf(EyePos));
    const Vector3 turned{
        (k * ax * ax + c) * v[0] + (k * ax * ay - s * az) * v[1] + (k * ax * az + s * ay) * v[2],
        (k * ax * ay + s * az) * v[0] + (k * ay * ay + c) * v[1] + (k * ay * az - s * ax) * v[2],
        (k * ax * az - s * ay) * v[0] + (k * ay * az + s * ax) * v[1] + (k * az * az + c) * v[2],
    };
    place(RefPos, VecAdd(positionOf(EyePos), turned));
}

void Cls4::Zoom(double factor) {
    if (!(factor > 0)) return;
    VolWidth *= factor;
    VolHeight *= factor;
}

Cls4::Volume Cls4::volumeFor(double jitterX, double jitterY, const std::function<Cls1()>& sceneBox) {
    Volleft = -VolWidth / 2;
    VolRight = VolWidth / 2;
    VolBottom = -VolHeight / 2;
    VolTop = VolHeight / 2;

    const bool perspective = ProjectType == 2;
    if (perspective) VolNear = 1000 - sceneBox().largestExtent();

    double ox = 1;
    double oy = 1;
    if (perspective || viewportWidth_ != 0) {
        // Both shifts divide by the width of the viewport, also the vertical one.
        const double divisor = jitterDivisor(viewportWidth_);
        ox = -jitterX * VolWidth / divisor;
        oy = -jitterY * VolHeight / divisor;
    }
    const Volume volume{ProjectType, ox + Volleft, ox + VolRight, oy + VolBottom, oy + VolTop, VolNear, VolFar};
    if (perspective) VolNear = 0.01;
    return volume;
}

void Cls4::Projection(gl::DisplayList& list, double jitterX, double jitterY, double, double, double,
                      const std::function<Cls1()>& sceneBox) {
    list.glMatrixMode(GL_PROJECTION);
    list.glLoadIdentity();
    list.glRenderMode(GL_RENDER);
    const Volume v = volumeFor(jitterX, jitterY, sceneBox);
    if (v.projectType == 1) list.glOrtho(v.left, v.right, v.bottom, v.top, v.nearPlane, v.farPlane);
    if (v.projectType == 2) list.glFrustum(v.left, v.right, v.bottom, v.top, v.nearPlane, v.farPlane);
    list.glMatrixMode(GL_MODELVIEW);
    list.glLoadIdentity();
    list.gluLookAt(EyePos.x, EyePos.y, EyePos.z, RefPos.x, RefPos.y, RefPos.z, VecUp[0], VecUp[1], VecUp[2]);
}

void Cls4::ResetUpVector() {
    const Vector3 d = direction();
    VecUp = VecCross(VecCross(d, {0, 1, 0}), d);
}

std::array<double, 3> Cls4::direction() const {
    const Vector3 d = VecSub(positionOf(RefPos), positionOf(EyePos));
    const double length = VecLength(d);
    if (length == 0)
        throw base::Failure(base::FailureCode::DivisionByZero,
                            "The eye stands at the point looked at: the view has no direction.");
    return {d[0] / length, d[1] / length, d[2] / length};
}

}  // namespace tessaplot::scene

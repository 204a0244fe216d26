#pragma once

#include <array>
#include <functional>

#include "gl/display_list.h"
#include "scene/box.h"
#include "scene/point.h"

namespace tessaplot::scene {

/// The camera: eye, reference point and up vector, the size of the view volume and of the drawing surface. It does not
/// move round the scene; a turn of the scene is a rotation multiplied in after it.
class Cls4 {
 public:
    int ProjectType = 1;  ///< 1 orthographic, 2 perspective; any other value sets no projection.
    double ScreenHeight = 200;
    double ScreenWidth = 200;
    double VolHeight = 40;
    double VolWidth = 40;
    double VolNear = 0.001;
    double VolFar = 2000;
    double Volleft = 0;
    double VolRight = 0;
    double VolTop = 0;
    double VolBottom = 0;
    std::array<double, 3> VecUp{0, 1, 0};
    Cls2 RefPos = Cls2::init(0, 0, 0);
    Cls2 EyePos = Cls2::init(0, 0, 1000);

    void GetViewRect(double& w, double& h) const;
    /// Sets the volume's height to `h` and its width by the aspect of the surface; `w` has no lasting effect.
    void SetViewRect(double w, double h);
    void SetVecup(double x, double y, double z);
    void SetRef(double x, double y, double z);
    void SetEye(double x, double y, double z);
    /// Takes the size of the drawing surface in physical pixels; a height of 0 becomes 1, also for the caller.
    void SetScreen(int width, int& height);
    /// Moves the picture by fractions of the view volume. Throws DivisionByZero if the eye stands at the reference
    /// point.
    void MoveView(double dx, double dy);
    /// Places the eye for one of ten standard directions; a type outside 1 to 10 changes neither eye nor up vector.
    void SetViewType(int type);
    /// Shows the box without a change of direction. In a 2D scene its Y extent plays no part.
    void ZoomAll(double minX, double minY, double minZ, double maxX, double maxY, double maxZ, int sceneMode);
    /// Turns the reference point round the eye by an angle in radians about an axis of length 1.
    void RotateView(double angle, double ax, double ay, double az);
    /// Multiplies the volume; factors of 0 and below are ignored.
    void Zoom(double factor);

    /// The six limits of the view volume and the choice of its projection, shifted by a jitter in pixels.
    struct Volume {
        int projectType = 1;
        double left = 0;
        double right = 0;
        double bottom = 0;
        double top = 0;
        double nearPlane = 0;
        double farPlane = 0;
    };

    /// Works out the volume that `Projection` emits and leaves the sides and the near plane in the properties.
    /// `sceneBox` is asked for the box of the shown graphs in perspective only. Perspective knows no guard: a box
    /// larger than 1000 gives a near plane behind the eye, a viewport without a width gives limits that are no numbers.
    Volume volumeFor(double jitterX, double jitterY, const std::function<Cls1()>& sceneBox);

    /// Emits both matrices. The last three arguments are accepted and have no effect.
    void Projection(gl::DisplayList& list, double jitterX, double jitterY, double eyeDx, double eyeDy, double focus,
                    const std::function<Cls1()>& sceneBox);

    int viewportWidth() const { return viewportWidth_; }
    int viewportHeight() const { return viewportHeight_; }

 private:
    void ResetUpVector();
    std::array<double, 3> direction() const;

    int viewportWidth_ = 200;
    int viewportHeight_ = 200;
};

}  // namespace tessaplot::scene

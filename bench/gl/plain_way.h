#pragma once

#include <functional>

#include <GL/gl.h>
#include <GL/glu.h>

#include "gl/canvas.h"

namespace tessaplot::bench {

/// Makes each call at once: a sink for emitters that has nothing recorded.
struct ImmediateCalls {
    void glBegin(GLenum mode) { ::glBegin(mode); }
    void glEnd() { ::glEnd(); }
    void glVertex3d(double x, double y, double z) { ::glVertex3d(x, y, z); }
    void glNormal3d(double x, double y, double z) { ::glNormal3d(x, y, z); }
    void glColor3f(float red, float green, float blue) { ::glColor3f(red, green, blue); }
    void glColor3d(double red, double green, double blue) { ::glColor3d(red, green, blue); }
    void glLineWidth(float width) { ::glLineWidth(width); }
    void glShadeModel(GLenum mode) { ::glShadeModel(mode); }
    void glPushMatrix() { ::glPushMatrix(); }
    void glPopMatrix() { ::glPopMatrix(); }
    void glTranslatef(float x, float y, float z) { ::glTranslatef(x, y, z); }
    void gluNewQuadric() { quadric = ::gluNewQuadric(); }
    void gluSphere(double radius, int slices, int stacks) { ::gluSphere(quadric, radius, slices, stacks); }
    void gluDeleteQuadric() { ::gluDeleteQuadric(quadric); }

    GLUquadric* quadric = nullptr;
};

/// How a program without recorded lists may go about it.
enum class Habit {
    Immediate,  ///< All calls of a sample are made at once; samples are added as in a replay.
    Listed,     ///< All calls of all samples go to OpenGL display lists, which are then called; likewise added.
    Blending,   ///< As Immediate, but each sample is blended into a floating-point picture, the straightforward way.
};

/// Draws frames as a program without recorded lists would: every sample emits all of its calls anew.
class PlainWay {
 public:
    PlainWay(Habit habit, int width, int height);
    ~PlainWay();

    /// `camera` sets the matrices of a sample, `body` makes the calls of the scene.
    void draw(int samples, const std::function<void(int sample)>& camera, const std::function<void()>& body);
    void present(GLuint framebuffer);

 private:
    using Camera = std::function<void(int sample)>;
    using Body = std::function<void()>;

    void list(int samples, const Camera& camera, const Body& body);
    void drawSample(int sample, const Camera& camera, const Body& body);
    void drawBlending(int samples, const Camera& camera, const Body& body);
    void addByBlending(float weight);
    void drawTexture(GLuint texture, float weight);

    Habit habit_;
    int width_;
    int height_;
    gl::Canvas canvas_;
    gl::ColorTarget sum_;
    gl::ColorTarget picture_;
    GLuint depth_ = 0;
    gl::ColorTarget sample_;
    GLuint copy_ = 0;
    GLuint lists_ = 0;  ///< The first of the display lists, one a sample.
};

}  // namespace tessaplot::bench

#include "gl/execute.h"

#include <algorithm>
#include <memory>

#include "gl/gl_calls.h"

namespace tessaplot::gl {

namespace {

/// The numbers of an operation as the argument types of its call.
class Arguments {
 public:
    explicit Arguments(std::span<const double> numbers) : numbers_(numbers) {}

    double d(std::size_t i) const { return numbers_[i]; }
    float f(std::size_t i) const { return static_cast<float>(numbers_[i]); }
    GLint i(std::size_t i) const { return static_cast<GLint>(numbers_[i]); }
    GLenum e(std::size_t i) const { return static_cast<GLenum>(numbers_[i]); }
    /// The numbers from the one given on, padded with zeros.
    template <std::size_t size>
    std::array<float, size> floats(std::size_t first) const {
        std::array<float, size> values{};
        const std::size_t count = std::min(size, numbers_.size() - first);
        for (std::size_t k = 0; k < count; ++k)
            values[k] = f(first + k);
        return values;
    }

 private:
    std::span<const double> numbers_;
};

struct DeleteQuadric {
    void operator()(GLUquadric* quadric) const { ::gluDeleteQuadric(quadric); }
};
using Quadric = std::unique_ptr<GLUquadric, DeleteQuadric>;

/// Colours are passed with their alpha: Mesa 22.3 leaves the last one in force after glColor4, glColor3, glColor4 and
/// glColor3 in this order.
void setAttribute(Op op, const Arguments& a) {
    switch (op) {
        case Op::Vertex3d:
            ::glVertex3d(a.d(0), a.d(1), a.d(2));
            break;
        case Op::Normal3d:
            ::glNormal3d(a.d(0), a.d(1), a.d(2));
            break;
        case Op::Color3f:
            ::glColor4f(a.f(0), a.f(1), a.f(2), 1);
            break;
        case Op::Color3d:
            ::glColor4d(a.d(0), a.d(1), a.d(2), 1);
            break;
        case Op::Color4f:
            ::glColor4f(a.f(0), a.f(1), a.f(2), a.f(3));
            break;
        case Op::Color4d:
            ::glColor4d(a.d(0), a.d(1), a.d(2), a.d(3));
            break;
        case Op::TexCoord2f:
            ::glTexCoord2f(a.f(0), a.f(1));
            break;
        case Op::TexCoord2d:
            ::glTexCoord2d(a.d(0), a.d(1));
            break;
        default:
            break;
    }
}

/// OpenGL refuses a volume without an inside and keeps its matrix. Such a call is left out: a far-off point or a strong
/// zoom can ask for it, and the error would be held against the next frame.
bool isVolume(const Arguments& a) {
    return a.d(0) != a.d(1) && a.d(2) != a.d(3) && a.d(4) != a.d(5);
}

void changeMatrix(Op op, const Arguments& a) {
    switch (op) {
        case Op::MatrixMode:
            ::glMatrixMode(a.e(0));
            break;
        case Op::LoadIdentity:
            ::glLoadIdentity();
            break;
        case Op::PushMatrix:
            ::glPushMatrix();
            break;
        case Op::PopMatrix:
            ::glPopMatrix();
            break;
        case Op::MultMatrixf:
            ::glMultMatrixf(a.floats<16>(0).data());
            break;
        case Op::Translatef:
            ::glTranslatef(a.f(0), a.f(1), a.f(2));
            break;
        case Op::Rotatef:
            ::glRotatef(a.f(0), a.f(1), a.f(2), a.f(3));
            break;
        case Op::Scalef:
            ::glScalef(a.f(0), a.f(1), a.f(2));
            break;
        case Op::Ortho:
            if (isVolume(a)) ::glOrtho(a.d(0), a.d(1), a.d(2), a.d(3), a.d(4), a.d(5));
            break;
        case Op::Frustum:
            if (isVolume(a) && a.d(4) > 0 && a.d(5) > 0) ::glFrustum(a.d(0), a.d(1), a.d(2), a.d(3), a.d(4), a.d(5));
            break;
        case Op::LookAt:
            ::gluLookAt(a.d(0), a.d(1), a.d(2), a.d(3), a.d(4), a.d(5), a.d(6), a.d(7), a.d(8));
            break;
        default:
            break;
    }
}

void changeState(Op op, const Arguments& a) {
    switch (op) {
        case Op::Enable:
            ::glEnable(a.e(0));
            break;
        case Op::Disable:
            ::glDisable(a.e(0));
            break;
        case Op::LineWidth:
            // Documents may hold a width of 0, which is an error and changes nothing.
            if (a.f(0) > 0) ::glLineWidth(a.f(0));
            break;
        case Op::ShadeModel:
            ::glShadeModel(a.e(0));
            break;
        case Op::PolygonMode:
            ::glPolygonMode(a.e(0), a.e(1));
            break;
        case Op::PolygonOffset:
            ::glPolygonOffset(a.f(0), a.f(1));
            break;
        case Op::Hint:
            ::glHint(a.e(0), a.e(1));
            break;
        case Op::BlendFunc:
            ::glBlendFunc(a.e(0), a.e(1));
            break;
        case Op::DepthMask:
            ::glDepthMask(a.d(0) != 0 ? GL_TRUE : GL_FALSE);
            break;
        case Op::ColorMaterial:
            ::glColorMaterial(a.e(0), a.e(1));
            break;
        case Op::Materialfv:
            ::glMaterialfv(a.e(0), a.e(1), a.floats<4>(2).data());
            break;
        case Op::Lightfv:
            ::glLightfv(a.e(0), a.e(1), a.floats<4>(2).data());
            break;
        case Op::LightModelfv:
            ::glLightModelfv(a.e(0), a.floats<4>(1).data());
            break;
        case Op::PushAttrib:
            ::glPushAttrib(a.e(0));
            break;
        case Op::PopAttrib:
            ::glPopAttrib();
            break;
        case Op::ListBase:
            ::glListBase(a.e(0));
            break;
        case Op::TexParameteri:
            ::glTexParameteri(a.e(0), a.e(1), a.i(2));
            break;
        case Op::TexEnvi:
            ::glTexEnvi(a.e(0), a.e(1), a.i(2));
            break;
        default:
            changeMatrix(op, a);
    }
}

void drawDirectly(Op op, const Arguments& a) {
    switch (op) {
        case Op::Begin:
            ::glBegin(a.e(0));
            break;
        case Op::End:
            ::glEnd();
            break;
        case Op::RasterPos3f:
            ::glRasterPos3f(a.f(0), a.f(1), a.f(2));
            break;
        case Op::Sphere:
            ::gluSphere(Quadric(::gluNewQuadric()).get(), a.d(0), a.i(1), a.i(2));
            break;
        case Op::Cylinder:
            ::gluCylinder(Quadric(::gluNewQuadric()).get(), a.d(0), a.d(1), a.d(2), a.i(3), a.i(4));
            break;
        default:
            setAttribute(op, a);
    }
}

}  // namespace

void executeCall(const Operation& operation) {
    const Arguments a(operation.numbers);
    switch (operation.op) {
        case Op::Begin:
        case Op::End:
        case Op::Vertex3d:
        case Op::Normal3d:
        case Op::Color3f:
        case Op::Color3d:
        case Op::Color4f:
        case Op::Color4d:
        case Op::TexCoord2f:
        case Op::TexCoord2d:
        case Op::RasterPos3f:
        case Op::Sphere:
        case Op::Cylinder:
            drawDirectly(operation.op, a);
            break;
        case Op::RenderMode:
            ::glRenderMode(a.e(0));
            break;
        case Op::Viewport:
            ::glViewport(a.i(0), a.i(1), a.i(2), a.i(3));
            break;
        case Op::Clear:
            ::glClear(a.e(0) & ~static_cast<GLbitfield>(GL_ACCUM_BUFFER_BIT));
            break;
        case Op::Flush:
            ::glFlush();
            break;
        case Op::Finish:
            ::glFinish();
            break;
        default:
            changeState(operation.op, a);
    }
}

bool changesPlacement(Op op) {
    switch (op) {
        case Op::LoadIdentity:
        case Op::PopMatrix:
        case Op::MultMatrixf:
        case Op::Translatef:
        case Op::Rotatef:
        case Op::Scalef:
        case Op::Ortho:
        case Op::Frustum:
        case Op::LookAt:
        case Op::Viewport:
        case Op::LineWidth:
        case Op::PopAttrib:
            return true;
        default:
            return false;
    }
}

bool drawsDirectly(Op op) {
    return op == Op::Begin || op == Op::Sphere || op == Op::Cylinder || op == Op::CallListsText;
}

}  // namespace tessaplot::gl

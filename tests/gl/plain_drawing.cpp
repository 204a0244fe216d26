#include "plain_drawing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include <GL/glext.h>
#include <GL/glu.h>

#include "base/failure.h"

namespace tessaplot::gl::test {

namespace {

std::array<float, 16> floats(std::span<const double> numbers) {
    std::array<float, 16> values{};
    std::transform(numbers.begin(), numbers.end(), values.begin(), [](double n) { return static_cast<float>(n); });
    return values;
}

GLenum e(double number) {
    return static_cast<GLenum>(number);
}

float f(double number) {
    return static_cast<float>(number);
}

}  // namespace

PlainDrawing::PlainDrawing(int width, int height) : width_(width), height_(height) {
    GLuint framebuffer = 0;
    std::array<GLuint, 2> buffers{};
    glGenFramebuffers(1, &framebuffer);
    glGenRenderbuffers(2, buffers.data());
    glBindFramebuffer(GL_FRAMEBUFFER, framebuffer);
    glBindRenderbuffer(GL_RENDERBUFFER, buffers[0]);
    glRenderbufferStorage(GL_RENDERBUFFER, GL_RGBA8, width, height);
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, buffers[0]);
    glBindRenderbuffer(GL_RENDERBUFFER, buffers[1]);
    glRenderbufferStorage(GL_RENDERBUFFER, GL_DEPTH_COMPONENT24, width, height);
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_DEPTH_ATTACHMENT, GL_RENDERBUFFER, buffers[1]);
    glViewport(0, 0, width, height);
    glClearColor(1, 1, 1, 1);
    glClearDepth(1);
    glEnable(GL_DITHER);
    glDepthFunc(GL_LEQUAL);
    glEnable(GL_DEPTH_TEST);
}

void PlainDrawing::draw(const DisplayList& frame) {
    context_.makeCurrent();
    frame.forEach([&](const Operation& operation) { call(frame, operation); });
    if (const GLenum error = glGetError(); error != GL_NO_ERROR)
        throw base::Failure(base::FailureCode::OpenGl, "plain drawing: error " + std::to_string(error));
}

void PlainDrawing::call(const DisplayList& list, const Operation& operation) {
    callVertex(operation);
    callMatrix(operation);
    callState(operation);
    callRest(list, operation);
}

/// Colours come with their alpha, since Mesa 22.3 gets it wrong where calls with and without it take turns.
void PlainDrawing::callVertex(const Operation& operation) {
    const auto& n = operation.numbers;
    switch (operation.op) {
        case Op::Begin:
            return ::glBegin(e(n[0]));
        case Op::End:
            return ::glEnd();
        case Op::Vertex3d:
            return ::glVertex3d(n[0], n[1], n[2]);
        case Op::Normal3d:
            return ::glNormal3d(n[0], n[1], n[2]);
        case Op::Color3f:
            return ::glColor4f(f(n[0]), f(n[1]), f(n[2]), 1);
        case Op::Color3d:
            return ::glColor4d(n[0], n[1], n[2], 1);
        case Op::Color4f:
            return ::glColor4f(f(n[0]), f(n[1]), f(n[2]), f(n[3]));
        case Op::Color4d:
            return ::glColor4d(n[0], n[1], n[2], n[3]);
        case Op::TexCoord2f:
            return ::glTexCoord2f(f(n[0]), f(n[1]));
        case Op::TexCoord2d:
            return ::glTexCoord2d(n[0], n[1]);
        default:
            return;
    }
}

void PlainDrawing::callMatrix(const Operation& operation) {
    const auto& n = operation.numbers;
    switch (operation.op) {
        case Op::MatrixMode:
            return ::glMatrixMode(e(n[0]));
        case Op::LoadIdentity:
            return ::glLoadIdentity();
        case Op::PushMatrix:
            return ::glPushMatrix();
        case Op::PopMatrix:
            return ::glPopMatrix();
        case Op::MultMatrixf:
            return ::glMultMatrixf(floats(n).data());
        case Op::Translatef:
            return ::glTranslatef(f(n[0]), f(n[1]), f(n[2]));
        case Op::Rotatef:
            return ::glRotatef(f(n[0]), f(n[1]), f(n[2]), f(n[3]));
        case Op::Scalef:
            return ::glScalef(f(n[0]), f(n[1]), f(n[2]));
        case Op::Ortho:
            return ::glOrtho(n[0], n[1], n[2], n[3], n[4], n[5]);
        case Op::Frustum:
            return ::glFrustum(n[0], n[1], n[2], n[3], n[4], n[5]);
        case Op::LookAt:
            return ::gluLookAt(n[0], n[1], n[2], n[3], n[4], n[5], n[6], n[7], n[8]);
        default:
            return;
    }
}

void PlainDrawing::callState(const Operation& operation) {
    const auto& n = operation.numbers;
    switch (operation.op) {
        case Op::Enable:
            return ::glEnable(e(n[0]));
        case Op::Disable:
            return ::glDisable(e(n[0]));
        case Op::LineWidth:
            return ::glLineWidth(f(n[0]));
        case Op::ShadeModel:
            return ::glShadeModel(e(n[0]));
        case Op::PolygonMode:
            return ::glPolygonMode(e(n[0]), e(n[1]));
        case Op::PolygonOffset:
            return ::glPolygonOffset(f(n[0]), f(n[1]));
        case Op::Hint:
            return ::glHint(e(n[0]), e(n[1]));
        case Op::BlendFunc:
            return ::glBlendFunc(e(n[0]), e(n[1]));
        case Op::DepthMask:
            return ::glDepthMask(n[0] != 0 ? GL_TRUE : GL_FALSE);
        case Op::ColorMaterial:
            return ::glColorMaterial(e(n[0]), e(n[1]));
        case Op::Materialfv:
            return ::glMaterialfv(e(n[0]), e(n[1]), floats(n.subspan(2)).data());
        case Op::Lightfv:
            return ::glLightfv(e(n[0]), e(n[1]), floats(n.subspan(2)).data());
        case Op::LightModelfv:
            return ::glLightModelfv(e(n[0]), floats(n.subspan(1)).data());
        case Op::PushAttrib:
            return ::glPushAttrib(e(n[0]));
        case Op::PopAttrib:
            return ::glPopAttrib();
        default:
            return;
    }
}

void PlainDrawing::callRest(const DisplayList& list, const Operation& operation) {
    const auto& n = operation.numbers;
    const auto i = [&n](std::size_t k) { return static_cast<GLint>(n[k]); };
    switch (operation.op) {
        case Op::Clear:
            if ((e(n[0]) & GL_ACCUM_BUFFER_BIT) != 0)
                sum_.assign(3 * static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_), 0);
            return ::glClear(e(n[0]) & ~static_cast<GLbitfield>(GL_ACCUM_BUFFER_BIT));
        case Op::Accum:
            return accumulate(e(n[0]), f(n[1]));
        case Op::CallList: {
            const DisplayList& called = *list.called(operation.object);
            return called.forEach([&](const Operation& inner) { call(called, inner); });
        }
        case Op::Sphere:
        case Op::Cylinder: {
            GLUquadric* quadric = ::gluNewQuadric();
            if (operation.op == Op::Sphere)
                ::gluSphere(quadric, n[0], i(1), i(2));
            else
                ::gluCylinder(quadric, n[0], n[1], n[2], i(3), i(4));
            return ::gluDeleteQuadric(quadric);
        }
        case Op::TexImage2D: {
            const TextureImage& image = *list.image(operation.object);
            GLuint texture = 0;
            glGenTextures(1, &texture);
            glBindTexture(GL_TEXTURE_2D, texture);
            glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
            return ::glTexImage2D(GL_TEXTURE_2D, 0, 4, image.width, image.height, 0,
                                  image.channels == 3 ? GL_RGB : GL_RGBA, GL_UNSIGNED_BYTE, image.pixels.data());
        }
        case Op::TexParameteri:
            return ::glTexParameteri(e(n[0]), e(n[1]), i(2));
        case Op::TexEnvi:
            return ::glTexEnvi(e(n[0]), e(n[1]), i(2));
        default:
            return;
    }
}

void PlainDrawing::accumulate(GLenum operation, float value) {
    if (operation == GL_RETURN) {
        std::vector<float> picture(sum_.size());
        std::transform(sum_.begin(), sum_.end(), picture.begin(), [value](float sum) { return sum * value; });
        // As a texture without depth in the far corner, so that the depth buffer stays.
        std::array<GLuint, 2> made{};
        glGenFramebuffers(1, &made[0]);
        glGenTextures(1, &made[1]);
        GLint bound = 0;
        GLint texture = 0;
        glGetIntegerv(GL_FRAMEBUFFER_BINDING, &bound);
        glGetIntegerv(GL_TEXTURE_BINDING_2D, &texture);
        glBindTexture(GL_TEXTURE_2D, made[1]);
        glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
        std::vector<std::uint8_t> rounded(picture.size());
        std::transform(picture.begin(), picture.end(), rounded.begin(), [](float channel) {
            return static_cast<std::uint8_t>(std::lround(std::clamp(channel, 0.0F, 1.0F) * 255));
        });
        ::glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA8, width_, height_, 0, GL_RGB, GL_UNSIGNED_BYTE, rounded.data());
        glBindFramebuffer(GL_READ_FRAMEBUFFER, made[0]);
        glFramebufferTexture2D(GL_READ_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, made[1], 0);
        glBlitFramebuffer(0, 0, width_, height_, 0, 0, width_, height_, GL_COLOR_BUFFER_BIT, GL_NEAREST);
        glBindFramebuffer(GL_FRAMEBUFFER, static_cast<GLuint>(bound));
        glBindTexture(GL_TEXTURE_2D, static_cast<GLuint>(texture));
        glDeleteFramebuffers(1, &made[0]);
        glDeleteTextures(1, &made[1]);
        return;
    }
    if (operation == GL_LOAD) std::fill(sum_.begin(), sum_.end(), 0.0F);
    std::vector<std::uint8_t> sample(sum_.size());
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glReadPixels(0, 0, width_, height_, GL_RGB, GL_UNSIGNED_BYTE, sample.data());
    for (std::size_t k = 0; k < sum_.size(); ++k)
        sum_[k] += static_cast<float>(sample[k]) / 255 * value;
}

Pixels PlainDrawing::readPixels() const {
    context_.makeCurrent();
    const std::size_t row = 3 * static_cast<std::size_t>(width_);
    Pixels pixels(row * static_cast<std::size_t>(height_));
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    for (int y = 0; y < height_; ++y)
        glReadPixels(0, height_ - 1 - y, width_, 1, GL_RGB, GL_UNSIGNED_BYTE,
                     pixels.data() + row * static_cast<std::size_t>(y));
    return pixels;
}

}  // namespace tessaplot::gl::test

#include "plain_drawing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>

#include <GL/glext.h>
#include <GL/glu.h>

namespace tessaplot::gl::test {

namespace {

std::array<float, 16> floats(std::span<const double> numbers) {
    std::array<float, 16> values{};
    std::transform(numbers.begin(), numbers.end(), values.begin(), [](double n) { return static_cast<float>(n); });
    return values;
}

}  // namespace

PlainDrawing::PlainDrawing(int width, int height) : width_(width), height_(height) {
    std::array<GLuint, 2> buffers{};
    glGenFramebuffers(1, &framebuffer_);
    glGenRenderbuffers(2, buffers.data());
    glBindFramebuffer(GL_FRAMEBUFFER, framebuffer_);
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
    if (glGetError() != GL_NO_ERROR) throw std::runtime_error("the plain drawing makes a wrong call");
}

void PlainDrawing::call(const DisplayList& list, const Operation& operation) {
    const Op op = operation.op;
    const auto& n = operation.numbers;
    const auto e = [&n](std::size_t k) { return static_cast<GLenum>(n[k]); };
    const auto i = [&n](std::size_t k) { return static_cast<GLint>(n[k]); };
    const auto f = [&n](std::size_t k) { return static_cast<float>(n[k]); };
    const auto v = [&n](std::size_t first) { return floats(n.subspan(first)); };

    if (op == Op::Begin) ::glBegin(e(0));
    if (op == Op::End) ::glEnd();
    if (op == Op::Vertex3d) ::glVertex3d(n[0], n[1], n[2]);
    if (op == Op::Normal3d) ::glNormal3d(n[0], n[1], n[2]);
    // Colours come with their alpha, since Mesa 22.3 gets it wrong where calls with and without it take turns.
    if (op == Op::Color3f) ::glColor4f(f(0), f(1), f(2), 1);
    if (op == Op::Color3d) ::glColor4d(n[0], n[1], n[2], 1);
    if (op == Op::Color4f) ::glColor4f(f(0), f(1), f(2), f(3));
    if (op == Op::Color4d) ::glColor4d(n[0], n[1], n[2], n[3]);
    if (op == Op::TexCoord2f) ::glTexCoord2f(f(0), f(1));
    if (op == Op::TexCoord2d) ::glTexCoord2d(n[0], n[1]);

    if (op == Op::MatrixMode) ::glMatrixMode(e(0));
    if (op == Op::LoadIdentity) ::glLoadIdentity();
    if (op == Op::PushMatrix) ::glPushMatrix();
    if (op == Op::PopMatrix) ::glPopMatrix();
    if (op == Op::MultMatrixf) ::glMultMatrixf(v(0).data());
    if (op == Op::Translatef) ::glTranslatef(f(0), f(1), f(2));
    if (op == Op::Rotatef) ::glRotatef(f(0), f(1), f(2), f(3));
    if (op == Op::Scalef) ::glScalef(f(0), f(1), f(2));
    if (op == Op::Ortho) ::glOrtho(n[0], n[1], n[2], n[3], n[4], n[5]);
    if (op == Op::Frustum) ::glFrustum(n[0], n[1], n[2], n[3], n[4], n[5]);
    if (op == Op::LookAt) ::gluLookAt(n[0], n[1], n[2], n[3], n[4], n[5], n[6], n[7], n[8]);

    if (op == Op::Enable) ::glEnable(e(0));
    if (op == Op::Disable) ::glDisable(e(0));
    if (op == Op::LineWidth) ::glLineWidth(f(0));
    if (op == Op::ShadeModel) ::glShadeModel(e(0));
    if (op == Op::PolygonMode) ::glPolygonMode(e(0), e(1));
    if (op == Op::PolygonOffset) ::glPolygonOffset(f(0), f(1));
    if (op == Op::Hint) ::glHint(e(0), e(1));
    if (op == Op::BlendFunc) ::glBlendFunc(e(0), e(1));
    if (op == Op::DepthMask) ::glDepthMask(n[0] != 0 ? GL_TRUE : GL_FALSE);
    if (op == Op::ColorMaterial) ::glColorMaterial(e(0), e(1));
    if (op == Op::Materialfv) ::glMaterialfv(e(0), e(1), v(2).data());
    if (op == Op::Lightfv) ::glLightfv(e(0), e(1), v(2).data());
    if (op == Op::LightModelfv) ::glLightModelfv(e(0), v(1).data());
    if (op == Op::PushAttrib) ::glPushAttrib(e(0));
    if (op == Op::PopAttrib) ::glPopAttrib();

    if (op == Op::Clear) clear(e(0));
    if (op == Op::Accum) accumulate(e(0), f(1));
    if (op == Op::CallList) draw(*list.called(operation.object));
    if (op == Op::TexImage2D) setImage(*list.image(operation.object));
    if (op == Op::TexParameteri) ::glTexParameteri(e(0), e(1), i(2));
    if (op == Op::TexEnvi) ::glTexEnvi(e(0), e(1), i(2));
    if (op != Op::Sphere && op != Op::Cylinder) return;
    GLUquadric* quadric = ::gluNewQuadric();
    if (op == Op::Sphere) ::gluSphere(quadric, n[0], i(1), i(2));
    if (op == Op::Cylinder) ::gluCylinder(quadric, n[0], n[1], n[2], i(3), i(4));
    ::gluDeleteQuadric(quadric);
}

void PlainDrawing::clear(GLbitfield buffers) {
    if ((buffers & GL_ACCUM_BUFFER_BIT) != 0)
        sum_.assign(3 * static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_), 0);
    ::glClear(buffers & ~static_cast<GLbitfield>(GL_ACCUM_BUFFER_BIT));
}

void PlainDrawing::setImage(const TextureImage& image) {
    GLuint texture = 0;
    glGenTextures(1, &texture);
    glBindTexture(GL_TEXTURE_2D, texture);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    ::glTexImage2D(GL_TEXTURE_2D, 0, 4, image.width, image.height, 0, image.channels == 3 ? GL_RGB : GL_RGBA,
                   GL_UNSIGNED_BYTE, image.pixels.data());
}

void PlainDrawing::accumulate(GLenum operation, float value) {
    if (operation == GL_RETURN) return showSum(value);
    if (operation == GL_LOAD) std::fill(sum_.begin(), sum_.end(), 0.0F);
    std::vector<std::uint8_t> sample(sum_.size());
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glReadPixels(0, 0, width_, height_, GL_RGB, GL_UNSIGNED_BYTE, sample.data());
    for (std::size_t k = 0; k < sum_.size(); ++k)
        sum_[k] += static_cast<float>(sample[k]) / 255 * value;
}

/// As a texture without depth, so that the depth buffer stays.
void PlainDrawing::showSum(float scale) {
    std::vector<std::uint8_t> rounded(sum_.size());
    std::transform(sum_.begin(), sum_.end(), rounded.begin(), [scale](float sum) {
        return static_cast<std::uint8_t>(std::lround(std::clamp(sum * scale, 0.0F, 1.0F) * 255));
    });
    GLuint framebuffer = 0;
    GLuint picture = 0;
    GLint texture = 0;
    glGetIntegerv(GL_TEXTURE_BINDING_2D, &texture);
    glGenFramebuffers(1, &framebuffer);
    glGenTextures(1, &picture);
    glBindTexture(GL_TEXTURE_2D, picture);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    ::glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA8, width_, height_, 0, GL_RGB, GL_UNSIGNED_BYTE, rounded.data());
    glBindFramebuffer(GL_READ_FRAMEBUFFER, framebuffer);
    glFramebufferTexture2D(GL_READ_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, picture, 0);
    glBlitFramebuffer(0, 0, width_, height_, 0, 0, width_, height_, GL_COLOR_BUFFER_BIT, GL_NEAREST);
    glBindFramebuffer(GL_READ_FRAMEBUFFER, framebuffer_);
    glBindTexture(GL_TEXTURE_2D, static_cast<GLuint>(texture));
    glDeleteFramebuffers(1, &framebuffer);
    glDeleteTextures(1, &picture);
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

#include "gl/canvas.h"

#include <algorithm>
#include <array>
#include <string>

#include "base/failure.h"
#include "gl/gl_calls.h"

namespace tessaplot::gl {

namespace {

void copyColors(GLuint from, GLuint to, int width, int height, int newWidth, int newHeight) {
    glBindFramebuffer(GL_READ_FRAMEBUFFER, from);
    glBindFramebuffer(GL_DRAW_FRAMEBUFFER, to);
    const bool sameSize = width == newWidth && height == newHeight;
    glBlitFramebuffer(0, 0, width, height, 0, 0, newWidth, newHeight, GL_COLOR_BUFFER_BIT,
                      sameSize ? GL_NEAREST : GL_LINEAR);
    glBindFramebuffer(GL_FRAMEBUFFER, to);
}

void failUnlessDrawable(int width, int height) {
    GLint most = 0;
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &most);
    if (width <= most && height <= most) return;
    throw base::Failure(base::FailureCode::OpenGl, "OpenGL draws pictures of at most " + std::to_string(most) +
                                                       " pixels a side, not of " + std::to_string(width) + " by " +
                                                       std::to_string(height) + ".");
}

}  // namespace

Canvas::~Canvas() {
    release();
}

void Canvas::release() {
    target_ = nullptr;
    picture_.reset();
    sampleTargets_.clear();
    sum_.sizeChanged();
    glDeleteRenderbuffers(1, &depth_);
    depth_ = 0;
    width_ = 0;
    height_ = 0;
}

void Canvas::resize(int width, int height) {
    if (width == width_ && height == height_) return;
    release();
    failUnlessDrawable(width, height);
    glGenRenderbuffers(1, &depth_);
    glBindRenderbuffer(GL_RENDERBUFFER, depth_);
    glRenderbufferStorage(GL_RENDERBUFFER, GL_DEPTH_COMPONENT24, width, height);
    picture_ = std::make_unique<ColorTarget>(GL_RGBA8, width, height, depth_);
    width_ = width;
    height_ = height;
    checkErrors("make a picture");
}

void Canvas::bind() {
    picture_->bind();
    target_ = picture_.get();
    targetIsShared_ = false;
    drawnArea_.placementChanged();
}

void Canvas::finish() {
    if (!targetIsPicture())
        copyColors(target_->framebuffer(), picture_->framebuffer(), width_, height_, width_, height_);
    bind();
}

void Canvas::clear(GLbitfield buffers) {
    if ((buffers & GL_ACCUM_BUFFER_BIT) != 0) {
        accumulated_.clear();
        usedTargets_ = 0;
        drawnArea_.clear();
        targetIsShared_ = true;
    }
    buffers &= ~static_cast<GLbitfield>(GL_ACCUM_BUFFER_BIT);
    if (buffers == 0) return;
    if (targetIsShared_) moveToNextSample((buffers & GL_COLOR_BUFFER_BIT) == 0);
    glClear(buffers);
}

void Canvas::beforeDrawing() {
    if (targetIsShared_) moveToNextSample(true);
}

void Canvas::moveToNextSample(bool keepsColors) {
    const ColorTarget* before = target_;
    if (usedTargets_ == sampleTargets_.size())
        sampleTargets_.push_back(std::make_unique<ColorTarget>(GL_RGBA8, width_, height_, depth_));
    target_ = sampleTargets_[usedTargets_++].get();
    targetIsShared_ = false;
    if (keepsColors && before != target_)
        copyColors(before->framebuffer(), target_->framebuffer(), width_, height_, width_, height_);
    else
        target_->bind();
    if (keepsColors) drawnArea_.includeAll();
}

void Canvas::accumulate(GLenum operation, float value) {
    switch (operation) {
        case GL_LOAD:
            accumulated_.clear();
            addSample(value);
            break;
        case GL_ACCUM:
            addSample(value);
            break;
        case GL_RETURN:
            returnSum(value);
            break;
        default:
            throw base::Failure(base::FailureCode::OpenGl,
                                "The accumulation buffer has no operation " + std::to_string(operation) + ".");
    }
}

void Canvas::addSample(float weight) {
    if (targetIsPicture()) moveToNextSample(true);
    accumulated_.push_back({target_->texture(), weight});
    targetIsShared_ = true;
}

/// Where no sample has drawn, all of them show the colour to which they were cleared.
void Canvas::returnSum(float scale) {
    const PixelArea area = drawnArea_.within(width_, height_);
    float weights = 0;
    for (const WeightedSample& sample : accumulated_)
        weights += sample.weight;
    std::array<float, 4> untouched{};
    glGetFloatv(GL_COLOR_CLEAR_VALUE, untouched.data());
    for (float& channel : untouched)
        channel *= weights * scale;
    untouched[3] = 1;
    picture_->bind();
    glClearBufferfv(GL_COLOR, 0, untouched.data());
    if (!area.empty() && !accumulated_.empty()) sum_.draw(accumulated_, scale, *picture_, area, width_, height_);
    target_ = picture_.get();
    targetIsShared_ = false;
}

void Canvas::copyTo(GLuint framebuffer, int width, int height) const {
    if (!picture_) return;
    copyColors(picture_->framebuffer(), framebuffer, width_, height_, width, height);
    checkErrors("show a picture");
}

std::vector<std::uint8_t> Canvas::readPixels() const {
    if (!picture_) return {};
    const std::size_t row = 3 * static_cast<std::size_t>(width_);
    std::vector<std::uint8_t> upwards(row * static_cast<std::size_t>(height_));
    picture_->bind();
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glReadPixels(0, 0, width_, height_, GL_RGB, GL_UNSIGNED_BYTE, upwards.data());
    glPixelStorei(GL_PACK_ALIGNMENT, 4);
    checkErrors("read a picture back");
    std::vector<std::uint8_t> pixels;
    pixels.reserve(upwards.size());
    for (auto end = upwards.end(); end != upwards.begin(); end -= static_cast<std::ptrdiff_t>(row))
        pixels.insert(pixels.end(), end - static_cast<std::ptrdiff_t>(row), end);
    return pixels;
}

}  // namespace tessaplot::gl

#pragma once

#include <cstdint>
#include <vector>

#include "gl/display_list.h"
#include "gl/offscreen_context.h"

namespace tessaplot::gl::test {

/// Red, green and blue of each pixel, rows from the top down.
using Pixels = std::vector<std::uint8_t>;

/// Draws lists in the plainest way, to compare with: every call is made as it was recorded, in immediate mode, and the
/// accumulation buffer is an array of floats.
class PlainDrawing {
 public:
    PlainDrawing(int width, int height);
    void draw(const DisplayList& frame);
    Pixels readPixels() const;

 private:
    void call(const DisplayList& list, const Operation& operation);
    void clear(GLbitfield buffers);
    void setImage(const TextureImage& image);
    void accumulate(GLenum operation, float value);
    void showSum(float scale);

    OffscreenContext context_;
    int width_;
    int height_;
    GLuint framebuffer_ = 0;
    std::vector<float> sum_;
};

}  // namespace tessaplot::gl::test

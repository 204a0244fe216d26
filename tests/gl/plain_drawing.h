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
    void callVertex(const Operation& operation);
    void callMatrix(const Operation& operation);
    void callState(const Operation& operation);
    void callRest(const DisplayList& list, const Operation& operation);
    void accumulate(GLenum operation, float value);

    OffscreenContext context_;
    int width_;
    int height_;
    std::vector<float> sum_;
};

}  // namespace tessaplot::gl::test

#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include <GL/gl.h>

#include "gl/drawn_area.h"
#include "gl/sample_sum.h"

namespace tessaplot::gl {

/// The frame buffer of a frame: its colour buffer (the picture), depth buffer and accumulation buffer.
///
/// Samples are drawn to textures of their own, which share the depth buffer, and come to the picture by GL_RETURN. So
/// the depth buffer is afterwards that of the last sample.
class Canvas {
 public:
    Canvas() = default;
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    /// Takes a size in pixels, both at least 1. Throws base::Failure (OpenGl) if the context cannot draw so large.
    void resize(int width, int height);
    int width() const { return width_; }
    int height() const { return height_; }

    /// Makes drawing go to the picture.
    void bind();
    /// Ends a frame: what the colour buffer shows is the picture, returned from the accumulation buffer or not.
    void finish();
    /// glClear.
    void clear(GLbitfield buffers);
    /// glAccum with GL_LOAD, GL_ACCUM or GL_RETURN; throws base::Failure (OpenGl) for another operation.
    void accumulate(GLenum operation, float value);
    /// To be called before anything is drawn.
    void beforeDrawing();
    /// What the samples since the clearing of the accumulation buffer have drawn.
    DrawnArea& drawnArea() { return drawnArea_; }

    /// Copies the picture to a framebuffer of the context, stretched if the sizes differ, and leaves that one bound.
    void copyTo(GLuint framebuffer, int width, int height) const;
    /// The picture: three bytes a pixel (red, green, blue), rows from the top down without padding.
    std::vector<std::uint8_t> readPixels() const;

 private:
    void release();
    bool targetIsPicture() const { return target_ == picture_.get(); }
    void addSample(float weight);
    void returnSum(float scale);
    void moveToNextSample(bool keepsColors);

    int width_ = 0;
    int height_ = 0;
    GLuint depth_ = 0;
    std::unique_ptr<ColorTarget> picture_;
    std::vector<std::unique_ptr<ColorTarget>> sampleTargets_;
    std::size_t usedTargets_ = 0;          ///< Sample targets in use since the accumulation buffer was cleared.
    const ColorTarget* target_ = nullptr;  ///< What stands for the colour buffer now.
    bool targetIsShared_ = false;          ///< The next change of colours has to go to a sample target of its own.
    std::vector<WeightedSample> accumulated_;
    DrawnArea drawnArea_;
    SampleSum sum_;
};

}  // namespace tessaplot::gl

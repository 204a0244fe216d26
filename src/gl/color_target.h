#pragma once

#include <GL/gl.h>

namespace tessaplot::gl {

/// A texture that can be drawn to, with the framebuffer for it.
class ColorTarget {
 public:
    /// `format` is the internal format, `depth` a renderbuffer of the same size or 0. Throws base::Failure (OpenGl) if
    /// the context cannot draw to it.
    ColorTarget(GLenum format, int width, int height, GLuint depth);
    ~ColorTarget();
    ColorTarget(const ColorTarget&) = delete;
    ColorTarget& operator=(const ColorTarget&) = delete;

    GLuint texture() const { return texture_; }
    GLuint framebuffer() const { return framebuffer_; }
    /// Makes drawing and reading go to the target.
    void bind() const;

 private:
    void create(GLenum format, int width, int height, GLuint depth);

    GLuint texture_ = 0;
    GLuint framebuffer_ = 0;
};

}  // namespace tessaplot::gl

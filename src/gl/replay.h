#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <GL/gl.h>

#include "gl/display_list.h"

namespace tessaplot::gl {

/// Draws display lists with OpenGL, and keeps the last picture.
///
/// A replay belongs to the context that is current when it is made; that one has to be current at each later call, the
/// destructor's included. State runs on from list to list and from frame to frame, as it does in a context to which all
/// calls were made one by one. A list that a frame calls is compiled into buffers on first use and kept as long as
/// somebody holds it; the frame itself is executed as it stands.
class Replay {
 public:
    /// Sets the state that drawing begins with: white ground, depth test. Throws base::Failure (OpenGl) unless a
    /// compatibility context of OpenGL 3.2 is current.
    Replay();
    ~Replay();
    Replay(const Replay&) = delete;
    Replay& operator=(const Replay&) = delete;

    /// Draws a frame into a picture of `width` by `height` pixels (physical ones; a size below 1 counts as 1). Does
    /// nothing and returns false if the same frame was drawn last at that size: the picture is still there. Throws
    /// base::Failure (OpenGl) where the context cannot.
    bool draw(const DisplayList& frame, int width, int height);

    /// Copies the picture to a framebuffer of the context, which is never 0 of itself: a window toolkit says which one
    /// is its window. Stretches the picture if the sizes differ, and leaves the framebuffer bound.
    void present(GLuint framebuffer, int width, int height) const;

    /// The picture's bytes: red, green and blue of each pixel, rows from the top down without padding.
    std::vector<std::uint8_t> readPixels() const;
    int width() const;
    int height() const;

    /// Why the pictures lack their texts, for a person to read; empty if they do not.
    const std::string& trouble() const;

    /// What was done since the replay was made.
    struct Counts {
        std::size_t frames = 0;     ///< Frames drawn.
        std::size_t compiled = 0;   ///< Lists compiled.
        std::size_t drawCalls = 0;  ///< Batches drawn, in all samples.
    };
    const Counts& counts() const;

 private:
    class Drawing;
    std::unique_ptr<Drawing> drawing_;
};

}  // namespace tessaplot::gl

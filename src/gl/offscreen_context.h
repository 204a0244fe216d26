#pragma once

namespace tessaplot::gl {

/// An OpenGL compatibility context without any display or window: pictures are drawn into framebuffer objects.
class OffscreenContext {
 public:
    /// Makes the context and makes it current. Throws base::Failure (OpenGl) that says what the machine lacks.
    OffscreenContext();
    ~OffscreenContext();
    OffscreenContext(const OffscreenContext&) = delete;
    OffscreenContext& operator=(const OffscreenContext&) = delete;

    /// Makes the context current on the calling thread. Throws base::Failure (OpenGl).
    void makeCurrent() const;

 private:
    void* display_ = nullptr;  ///< An EGLDisplay; stays initialised, since all contexts of the process share it.
    void* context_ = nullptr;  ///< An EGLContext.
};

}  // namespace tessaplot::gl

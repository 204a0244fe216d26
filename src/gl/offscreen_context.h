#pragma once

#include <future>
#include <memory>

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

    /// Leaves the calling thread without a context, so that another one can make this context current.
    void release() const;

    /// Makes a context on a thread of its own, current on none: it loads the driver while other work goes on.
    static std::future<std::unique_ptr<OffscreenContext>> prepare();

 private:
    void* display_ = nullptr;  ///< An EGLDisplay; stays initialised, since all contexts of the process share it.
    void* context_ = nullptr;  ///< An EGLContext.
};

}  // namespace tessaplot::gl

#include "gl/offscreen_context.h"

#include <string>
#include <string_view>

#include <EGL/egl.h>
#include <EGL/eglext.h>

#include "base/failure.h"
#include "gl/gl_calls.h"

namespace tessaplot::gl {

namespace {

[[noreturn]] void fail(const std::string& reason) {
    throw base::Failure(base::FailureCode::OpenGl, "Pictures cannot be drawn without a display: " + reason + ".");
}

bool offers(EGLDisplay display, std::string_view extension) {
    const char* names = eglQueryString(display, EGL_EXTENSIONS);
    return names != nullptr && std::string_view(names).find(extension) != std::string_view::npos;
}

/// The default display would look for an X server, so the platform is named.
EGLDisplay openDisplay() {
    if (!offers(EGL_NO_DISPLAY, "EGL_MESA_platform_surfaceless")) fail("EGL offers no platform without surfaces");
    EGLDisplay display = eglGetPlatformDisplay(EGL_PLATFORM_SURFACELESS_MESA, nullptr, nullptr);
    if (display == EGL_NO_DISPLAY || eglInitialize(display, nullptr, nullptr) == EGL_FALSE)
        fail("EGL cannot open its platform without surfaces");
    if (!offers(display, "EGL_KHR_surfaceless_context") || !offers(display, "EGL_KHR_no_config_context"))
        fail("EGL makes no context without a surface");
    return display;
}

EGLContext createContext(EGLDisplay display) {
    if (eglBindAPI(EGL_OPENGL_API) == EGL_FALSE) fail("EGL offers no desktop OpenGL");
    // Without a version the newest context that still has all of the old calls is made.
    EGLContext context = eglCreateContext(display, EGL_NO_CONFIG_KHR, EGL_NO_CONTEXT, nullptr);
    if (context == EGL_NO_CONTEXT) fail("EGL makes no OpenGL context");
    return context;
}

}  // namespace

OffscreenContext::OffscreenContext() : display_(openDisplay()), context_(createContext(display_)) {
    try {
        makeCurrent();
        requireCompatibilityContext();
    } catch (...) {
        release();
        eglDestroyContext(display_, context_);
        throw;
    }
}

OffscreenContext::~OffscreenContext() {
    if (eglGetCurrentContext() == context_) release();
    eglDestroyContext(display_, context_);
}

void OffscreenContext::makeCurrent() const {
    if (eglMakeCurrent(display_, EGL_NO_SURFACE, EGL_NO_SURFACE, context_) == EGL_FALSE)
        fail("EGL cannot make the OpenGL context current");
}

void OffscreenContext::release() const {
    eglMakeCurrent(display_, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
}

std::future<std::unique_ptr<OffscreenContext>> OffscreenContext::prepare() {
    return std::async(std::launch::async, [] {
        auto context = std::make_unique<OffscreenContext>();
        context->release();
        return context;
    });
}

}  // namespace tessaplot::gl

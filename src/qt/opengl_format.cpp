#include "qt/opengl_format.h"

#include <QCoreApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QSurfaceFormat>

#include <GL/gl.h>
#include <GL/glext.h>

namespace tessaplot::qt {

namespace {

constexpr int channelBits = 8;
constexpr int depthBits = 24;

/// The version from which on a context states its profile.
constexpr std::pair profiledVersion{3, 2};

bool hasFixedFunctions(const QOpenGLContext& context) {
    const auto version = context.format().version();
    if (version < std::pair{3, 1}) return true;
    if (version < profiledVersion) return context.hasExtension("GL_ARB_compatibility");
    GLint profile = 0;
    glGetIntegerv(GL_CONTEXT_PROFILE_MASK, &profile);
    return (profile & GL_CONTEXT_COMPATIBILITY_PROFILE_BIT) != 0;
}

}  // namespace

void requestOpenGl() {
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QSurfaceFormat format = QSurfaceFormat::defaultFormat();
    format.setRenderableType(QSurfaceFormat::OpenGL);
    format.setVersion(profiledVersion.first, profiledVersion.second);
    format.setProfile(QSurfaceFormat::CompatibilityProfile);
    // Without it a context of version 3 is forward compatible, and some drivers then make it a core one.
    format.setOption(QSurfaceFormat::DeprecatedFunctions);
    format.setRedBufferSize(channelBits);
    format.setGreenBufferSize(channelBits);
    format.setBlueBufferSize(channelBits);
    format.setDepthBufferSize(depthBits);
    format.setSamples(0);
    QSurfaceFormat::setDefaultFormat(format);
}

const char* reasonAgainstCurrentContext() {
    const QOpenGLContext* context = QOpenGLContext::currentContext();
    if (context == nullptr) return "there is no OpenGL context";
    if (context->isOpenGLES()) return "only OpenGL ES is available";
    // A driver may hand out functions that do nothing.
    if (glGetString(GL_VERSION) == nullptr) return "the OpenGL driver does not answer";
    if (!hasFixedFunctions(*context)) return "the OpenGL context has no compatibility profile";
    return nullptr;
}

const char* reasonAgainstOpenGl() {
    QOpenGLContext* shared = QOpenGLContext::globalShareContext();
    if (shared == nullptr || !shared->isValid()) return "there is no OpenGL context";
    QOffscreenSurface surface;
    surface.setFormat(shared->format());
    surface.create();
    if (!shared->makeCurrent(&surface)) return "the OpenGL context does not work";
    const char* reason = reasonAgainstCurrentContext();
    shared->doneCurrent();
    return reason;
}

}  // namespace tessaplot::qt

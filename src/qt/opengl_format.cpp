#include "qt/opengl_format.h"

#include <QCoreApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QScopeGuard>
#include <QSurfaceFormat>

#include "base/failure.h"
#include "gl/gl_calls.h"

namespace tessaplot::qt {

namespace {

constexpr int channelBits = 8;
constexpr int depthBits = 24;

/// The version from which on a context can be asked for a profile.
constexpr int majorVersion = 3;
constexpr int minorVersion = 2;

}  // namespace

void requestOpenGl() {
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QSurfaceFormat format = QSurfaceFormat::defaultFormat();
    format.setRenderableType(QSurfaceFormat::OpenGL);
    format.setVersion(majorVersion, minorVersion);
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

void requireOpenGl() {
    QOpenGLContext* shared = QOpenGLContext::globalShareContext();
    QOffscreenSurface surface;
    if (shared != nullptr) surface.setFormat(shared->format());
    surface.create();
    if (shared == nullptr || !shared->isValid() || !shared->makeCurrent(&surface))
        throw base::Failure(base::FailureCode::OpenGl, "This display offers no OpenGL.");
    const auto release = qScopeGuard([shared] { shared->doneCurrent(); });
    gl::requireCompatibilityContext();
}

}  // namespace tessaplot::qt

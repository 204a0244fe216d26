#pragma once

// The build defines GL_GLEXT_PROTOTYPES for this folder, since any header may be the first to include GL/gl.h.
#include <string_view>

#include <GL/gl.h>
#include <GL/glext.h>
#include <GL/glu.h>

namespace tessaplot::gl {

/// Throws base::Failure (OpenGl) unless an OpenGL context of at least version 3.2 with the compatibility profile is
/// current.
void requireCompatibilityContext();

/// Throws base::Failure (OpenGl) with all pending OpenGL errors; `work` says what was being done.
void failOnErrors(std::string_view work);

/// failOnErrors in builds that check OpenGL, else nothing.
inline void checkErrors([[maybe_unused]] std::string_view work) {
#ifdef TESSAPLOT_GL_CHECKS
    failOnErrors(work);
#endif
}

}  // namespace tessaplot::gl

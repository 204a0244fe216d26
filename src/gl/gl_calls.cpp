#include "gl/gl_calls.h"

#include <string>
#include <utility>

#include "base/failure.h"

namespace tessaplot::gl {

namespace {

[[noreturn]] void fail(const std::string& message) {
    throw base::Failure(base::FailureCode::OpenGl, message);
}

/// A context that was lost reports an error for ever.
constexpr int mostErrors = 16;

}  // namespace

void requireCompatibilityContext() {
    // A driver may hand out functions that do nothing.
    const GLubyte* text = glGetString(GL_VERSION);
    if (text == nullptr) fail("There is no working OpenGL context.");
    const std::string version = reinterpret_cast<const char*>(text);
    std::pair<GLint, GLint> number{0, 0};
    glGetIntegerv(GL_MAJOR_VERSION, &number.first);
    glGetIntegerv(GL_MINOR_VERSION, &number.second);
    if (number < std::pair{3, 2}) fail("OpenGL 3.2 is needed, this machine has " + version + ".");
    GLint profile = 0;
    glGetIntegerv(GL_CONTEXT_PROFILE_MASK, &profile);
    if ((profile & GL_CONTEXT_COMPATIBILITY_PROFILE_BIT) == 0)
        fail("An OpenGL context with the compatibility profile is needed, this is " + version + ".");
}

void failOnErrors(std::string_view work) {
    std::string errors;
    for (int i = 0; i < mostErrors; ++i) {
        const GLenum error = glGetError();
        if (error == GL_NO_ERROR) break;
        const GLubyte* name = gluErrorString(error);
        if (!errors.empty()) errors += ", ";
        errors += name != nullptr ? reinterpret_cast<const char*>(name) : std::to_string(error);
    }
    if (!errors.empty()) fail("OpenGL failed to " + std::string(work) + ": " + errors + ".");
}

}  // namespace tessaplot::gl

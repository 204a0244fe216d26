#include "gl/color_target.h"

#include <string>

#include "base/failure.h"
#include "gl/gl_calls.h"

namespace tessaplot::gl {

ColorTarget::ColorTarget(GLenum format, int width, int height, GLuint depth) {
    GLint bound = 0;
    glGetIntegerv(GL_TEXTURE_BINDING_2D, &bound);
    create(format, width, height, depth);
    glBindTexture(GL_TEXTURE_2D, static_cast<GLuint>(bound));
    if (glCheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE) return;
    glDeleteFramebuffers(1, &framebuffer_);
    glDeleteTextures(1, &texture_);
    throw base::Failure(base::FailureCode::OpenGl, "OpenGL cannot draw a picture of " + std::to_string(width) + " by " +
                                                       std::to_string(height) + " pixels.");
}

void ColorTarget::create(GLenum format, int width, int height, GLuint depth) {
    glGenTextures(1, &texture_);
    glBindTexture(GL_TEXTURE_2D, texture_);
    glTexImage2D(GL_TEXTURE_2D, 0, static_cast<GLint>(format), width, height, 0, GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    glGenFramebuffers(1, &framebuffer_);
    bind();
    glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, texture_, 0);
    if (depth != 0) glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_DEPTH_ATTACHMENT, GL_RENDERBUFFER, depth);
}

ColorTarget::~ColorTarget() {
    glDeleteFramebuffers(1, &framebuffer_);
    glDeleteTextures(1, &texture_);
}

void ColorTarget::bind() const {
    glBindFramebuffer(GL_FRAMEBUFFER, framebuffer_);
}

}  // namespace tessaplot::gl

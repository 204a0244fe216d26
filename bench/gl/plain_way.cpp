#include "plain_way.h"

#include <GL/glext.h>

namespace tessaplot::bench {

namespace {

constexpr GLsizei mostSamples = 8;

GLuint makeDepth(int width, int height) {
    GLuint depth = 0;
    glGenRenderbuffers(1, &depth);
    glBindRenderbuffer(GL_RENDERBUFFER, depth);
    glRenderbufferStorage(GL_RENDERBUFFER, GL_DEPTH_COMPONENT24, width, height);
    return depth;
}

GLuint makeCopyProgram() {
    const char* source =
        "#version 130\nuniform sampler2D picture;\nuniform float weight;\n"
        "void main() { gl_FragColor = texelFetch(picture, ivec2(gl_FragCoord.xy), 0) * weight; }\n";
    const GLuint shader = glCreateShader(GL_FRAGMENT_SHADER);
    glShaderSource(shader, 1, &source, nullptr);
    glCompileShader(shader);
    const GLuint program = glCreateProgram();
    glAttachShader(program, shader);
    glLinkProgram(program);
    glDeleteShader(shader);
    return program;
}

}  // namespace

PlainWay::PlainWay(Habit habit, int width, int height)
    : habit_(habit),
      width_(width),
      height_(height),
      sum_(GL_RGBA32F, width, height, 0),
      picture_(GL_RGBA8, width, height, 0),
      depth_(makeDepth(width, height)),
      sample_(GL_RGBA8, width, height, depth_),
      copy_(makeCopyProgram()),
      lists_(glGenLists(mostSamples)) {
    canvas_.resize(width, height);
}

PlainWay::~PlainWay() {
    glDeleteLists(lists_, mostSamples);
    glDeleteProgram(copy_);
    glDeleteRenderbuffers(1, &depth_);
}

void PlainWay::draw(int samples, const Camera& camera, const Body& body) {
    if (habit_ == Habit::Blending) {
        drawBlending(samples, camera, body);
        return;
    }
    if (habit_ == Habit::Listed) list(samples, camera, body);
    canvas_.bind();
    canvas_.clear(GL_ACCUM_BUFFER_BIT);
    glViewport(0, 0, width_, height_);
    for (int sample = 0; sample < samples; ++sample) {
        canvas_.clear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        drawSample(sample, camera, body);
        canvas_.drawnArea().placementChanged();
        canvas_.drawnArea().include({{-5.1F, -5.1F, -5.1F}, {5.1F, 5.1F, 5.1F}});
        canvas_.accumulate(GL_ACCUM, 1.0F / static_cast<float>(samples));
    }
    canvas_.accumulate(GL_RETURN, 1);
    canvas_.finish();
    glFinish();
}

void PlainWay::list(int samples, const Camera& camera, const Body& body) {
    for (int sample = 0; sample < samples; ++sample) {
        glNewList(lists_ + static_cast<GLuint>(sample), GL_COMPILE);
        camera(sample);
        body();
        glEndList();
    }
}

void PlainWay::drawSample(int sample, const Camera& camera, const Body& body) {
    if (habit_ == Habit::Listed) {
        glCallList(lists_ + static_cast<GLuint>(sample));
        return;
    }
    camera(sample);
    body();
}

void PlainWay::drawBlending(int samples, const Camera& camera, const Body& body) {
    const std::array<float, 4> nothing{};
    sum_.bind();
    glClearBufferfv(GL_COLOR, 0, nothing.data());
    glViewport(0, 0, width_, height_);
    for (int sample = 0; sample < samples; ++sample) {
        sample_.bind();
        glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        drawSample(sample, camera, body);
        addByBlending(1.0F / static_cast<float>(samples));
    }
    picture_.bind();
    drawTexture(sum_.texture(), 1);
    glFinish();
}

void PlainWay::addByBlending(float weight) {
    sum_.bind();
    glPushAttrib(GL_ENABLE_BIT | GL_COLOR_BUFFER_BIT);
    glEnable(GL_BLEND);
    glBlendFunc(GL_ONE, GL_ONE);
    drawTexture(sample_.texture(), weight);
    glPopAttrib();
}

void PlainWay::drawTexture(GLuint texture, float weight) {
    glPushAttrib(GL_ENABLE_BIT);
    glDisable(GL_DEPTH_TEST);
    for (const GLenum mode : {GL_MODELVIEW, GL_PROJECTION}) {
        glMatrixMode(mode);
        glPushMatrix();
        glLoadIdentity();
    }
    glBindTexture(GL_TEXTURE_2D, texture);
    glUseProgram(copy_);
    glUniform1f(glGetUniformLocation(copy_, "weight"), weight);
    glBegin(GL_TRIANGLES);
    glVertex2f(-1, -1);
    glVertex2f(3, -1);
    glVertex2f(-1, 3);
    glEnd();
    glUseProgram(0);
    glBindTexture(GL_TEXTURE_2D, 0);
    glPopMatrix();
    glMatrixMode(GL_MODELVIEW);
    glPopMatrix();
    glPopAttrib();
}

void PlainWay::present(GLuint framebuffer) {
    if (habit_ != Habit::Blending) {
        canvas_.copyTo(framebuffer, width_, height_);
        return;
    }
    glBindFramebuffer(GL_READ_FRAMEBUFFER, picture_.framebuffer());
    glBindFramebuffer(GL_DRAW_FRAMEBUFFER, framebuffer);
    glBlitFramebuffer(0, 0, width_, height_, 0, 0, width_, height_, GL_COLOR_BUFFER_BIT, GL_NEAREST);
}

}  // namespace tessaplot::bench

#include "gl/sample_sum.h"

#include <algorithm>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "base/failure.h"
#include "gl/gl_calls.h"

namespace tessaplot::gl {

namespace {

constexpr const char* vertexShader = "#version 130\nvoid main() { gl_Position = gl_Vertex; }\n";

/// Plain texture reads: on software OpenGL they are faster than texel fetches.
std::string fragmentShader(std::size_t samples) {
    std::string source = "#version 130\nuniform vec2 pixel;\nuniform float scale;\n";
    const auto forEachSample = [&source, samples](std::initializer_list<std::string_view> parts) {
        for (std::size_t i = 0; i < samples; ++i)
            for (const std::string_view part : parts)
                part == "#" ? source += std::to_string(i) : source += part;
    };
    forEachSample({"uniform sampler2D sample", "#", ";\nuniform float weight", "#", ";\n"});
    source += "void main() {\n    vec2 at = gl_FragCoord.xy * pixel;\n    vec3 sum = vec3(0.0);\n";
    forEachSample({"    sum += texture(sample", "#", ", at).rgb * weight", "#", ";\n"});
    source += "    gl_FragColor = vec4(sum * scale, 1.0);\n}\n";
    return source;
}

void attachShader(GLuint program, GLenum kind, const std::string& source) {
    const GLuint shader = glCreateShader(kind);
    const char* text = source.c_str();
    glShaderSource(shader, 1, &text, nullptr);
    glCompileShader(shader);
    glAttachShader(program, shader);
    glDeleteShader(shader);
}

GLuint makeProgram(std::size_t samples) {
    const GLuint program = glCreateProgram();
    attachShader(program, GL_VERTEX_SHADER, vertexShader);
    attachShader(program, GL_FRAGMENT_SHADER, fragmentShader(samples));
    glLinkProgram(program);
    GLint linked = GL_FALSE;
    glGetProgramiv(program, GL_LINK_STATUS, &linked);
    if (linked == GL_FALSE) {
        glDeleteProgram(program);
        throw base::Failure(base::FailureCode::OpenGl, "OpenGL cannot compile the shader that adds samples.");
    }
    return program;
}

GLint place(GLuint program, const char* name, std::size_t number) {
    return glGetUniformLocation(program, (name + std::to_string(number)).c_str());
}

void drawWholePicture() {
    ::glBegin(GL_TRIANGLES);
    ::glVertex2f(-1, -1);
    ::glVertex2f(3, -1);
    ::glVertex2f(-1, 3);
    ::glEnd();
}

void setPlainState(const PixelArea& area, int width, int height) {
    for (const GLenum test : {GL_DEPTH_TEST, GL_BLEND, GL_CULL_FACE, GL_DITHER})
        glDisable(test);
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    glViewport(0, 0, width, height);
    glEnable(GL_SCISSOR_TEST);
    glScissor(area.x0, area.y0, area.x1 - area.x0, area.y1 - area.y0);
}

}  // namespace

SampleSum::~SampleSum() {
    for (const GLuint program : programs_)
        glDeleteProgram(program);
}

void SampleSum::sizeChanged() {
    partialSums_ = {};
}

GLuint SampleSum::program(std::size_t samples) {
    GLuint& program = programs_[samples];
    if (program == 0) program = makeProgram(samples);
    return program;
}

const ColorTarget& SampleSum::partialSum(std::size_t number, int width, int height) {
    std::unique_ptr<ColorTarget>& target = partialSums_[number % partialSums_.size()];
    if (!target) target = std::make_unique<ColorTarget>(GL_RGBA32F, width, height, 0);
    return *target;
}

void SampleSum::draw(std::span<const WeightedSample> samples, float scale, const ColorTarget& target,
                     const PixelArea& area, int width, int height) {
    glPushAttrib(GL_ENABLE_BIT | GL_POLYGON_BIT | GL_SCISSOR_BIT | GL_TEXTURE_BIT | GL_VIEWPORT_BIT);
    setPlainState(area, width, height);
    std::vector<WeightedSample> pass;
    std::size_t passes = 0;
    while (samples.size() > samplesInOnePass) {
        pass.insert(pass.end(), samples.begin(), samples.begin() + samplesInOnePass);
        samples = samples.subspan(samplesInOnePass);
        const ColorTarget& partial = partialSum(passes++, width, height);
        partial.bind();
        drawPass(pass, 1, width, height);
        pass = {{partial.texture(), 1}};
    }
    pass.insert(pass.end(), samples.begin(), samples.end());
    target.bind();
    drawPass(pass, scale, width, height);
    glPopAttrib();
    checkErrors("add the samples of a picture");
}

void SampleSum::drawPass(std::span<const WeightedSample> samples, float scale, int width, int height) {
    const GLuint adding = program(samples.size());
    glUseProgram(adding);
    glUniform2f(glGetUniformLocation(adding, "pixel"), 1.0F / static_cast<float>(width),
                1.0F / static_cast<float>(height));
    glUniform1f(glGetUniformLocation(adding, "scale"), scale);
    for (std::size_t i = 0; i < samples.size(); ++i) {
        glActiveTexture(GL_TEXTURE0 + static_cast<GLenum>(i));
        glBindTexture(GL_TEXTURE_2D, samples[i].texture);
        glUniform1i(place(adding, "sample", i), static_cast<GLint>(i));
        glUniform1f(place(adding, "weight", i), samples[i].weight);
    }
    drawWholePicture();
    glActiveTexture(GL_TEXTURE0);
    glUseProgram(0);
}

}  // namespace tessaplot::gl

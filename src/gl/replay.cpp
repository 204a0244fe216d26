#include "gl/replay.h"

#include <algorithm>
#include <optional>
#include <unordered_map>
#include <utility>

#include "gl/canvas.h"
#include "gl/execute.h"
#include "gl/gl_calls.h"
#include "gl/glyph_drawing.h"
#include "gl/list_buffers.h"
#include "gl/texture_store.h"

namespace tessaplot::gl {

namespace {

bool polygonsAreFilled() {
    std::array<GLint, 2> modes{};
    glGetIntegerv(GL_POLYGON_MODE, modes.data());
    return modes[0] == GL_FILL && modes[1] == GL_FILL;
}

/// True if the back of a closed surface never shows behind its front. Backs are culled then: small spheres consist of
/// many triangles, and half of them look away.
bool solidsHideTheirBacks() {
    GLboolean writesDepth = GL_FALSE;
    glGetBooleanv(GL_DEPTH_WRITEMASK, &writesDepth);
    return writesDepth == GL_TRUE && glIsEnabled(GL_DEPTH_TEST) == GL_TRUE && glIsEnabled(GL_BLEND) == GL_FALSE &&
           glIsEnabled(GL_CULL_FACE) == GL_FALSE;
}

/// Of a solid in one colour, which has no normals, the sides that look away change nothing.
void beginGlyphs(const Batch& batch) {
    glPushAttrib(GL_POLYGON_BIT);
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    if ((batch.attributes & normalAttribute) == 0) glEnable(GL_CULL_FACE);
}

}  // namespace

/// The compiled lists, the textures and the canvas of one context.
class Replay::Drawing {
 public:
    Drawing();

    bool draw(const DisplayList& frame, int width, int height);
    const Canvas& canvas() const { return canvas_; }
    const Counts& counts() const { return counts_; }
    const std::string& trouble() const { return glyphs_.trouble(); }

 private:
    struct Compiled {
        std::weak_ptr<const DisplayList> source;
        std::unique_ptr<ListBuffers> buffers;
    };

    void dropUnused();
    void execute(const DisplayList& list);
    void execute(const ListBuffers& list);
    void perform(const DisplayList& list, const Operation& operation);
    void beginDirectDrawing();
    void call(const DisplayListPtr& list);
    const ListBuffers* buffersOf(const DisplayListPtr& list);
    void drawBatch(const ListBuffers& list, const Batch& batch);

    GlyphStore glyphs_;
    std::optional<DisplayList> lastFrame_;
    std::unordered_map<const DisplayList*, Compiled> compiled_;
    TextureStore textures_;
    Canvas canvas_;
    GLenum matrixMode_ = GL_MODELVIEW;
    Counts counts_;
};

Replay::Drawing::Drawing() {
    requireCompatibilityContext();
    glClearColor(1, 1, 1, 1);
    glClearDepth(1);
    glDepthFunc(GL_LEQUAL);
    glEnable(GL_DITHER);
    glEnable(GL_DEPTH_TEST);
    checkErrors("prepare a context");
}

bool Replay::Drawing::draw(const DisplayList& frame, int width, int height) {
    width = std::max(width, 1);
    height = std::max(height, 1);
    if (width == canvas_.width() && height == canvas_.height() && lastFrame_ == frame) return false;
    lastFrame_.reset();
    dropUnused();
    canvas_.resize(width, height);
    canvas_.bind();
    glViewport(0, 0, width, height);
    execute(frame);
    canvas_.finish();
    checkErrors("draw a frame");
    ++counts_.frames;
    lastFrame_ = frame;
    return true;
}

void Replay::Drawing::dropUnused() {
    std::erase_if(compiled_, [](const auto& item) { return item.second.source.expired(); });
    textures_.dropUnused();
}

void Replay::Drawing::execute(const DisplayList& list) {
    list.forEach([&](const Operation& operation) { perform(list, operation); });
}

void Replay::Drawing::execute(const ListBuffers& list) {
    auto batch = list.batches().begin();
    const auto end = list.batches().end();
    std::size_t place = 0;
    list.calls().forEach([&](const Operation& operation) {
        while (batch != end && batch->place == place)
            drawBatch(list, *batch++);
        perform(list.calls(), operation);
        ++place;
    });
    while (batch != end)
        drawBatch(list, *batch++);
    glBindVertexArray(0);
}

void Replay::Drawing::perform(const DisplayList& list, const Operation& operation) {
    switch (operation.op) {
        case Op::CallList:
            call(list.called(operation.object));
            return;
        case Op::CallListsText:
            beginDirectDrawing();
            drawText(glyphs_, static_cast<GLenum>(operation.numbers[1]), list.text(operation.object));
            canvas_.drawnArea().placementChanged();
            return;
        case Op::TexImage2D:
            textures_.bind(list.image(operation.object));
            return;
        case Op::Clear:
            canvas_.clear(static_cast<GLbitfield>(operation.numbers[0]));
            return;
        case Op::Accum:
            canvas_.accumulate(static_cast<GLenum>(operation.numbers[0]), static_cast<float>(operation.numbers[1]));
            return;
        case Op::MatrixMode:
            matrixMode_ = static_cast<GLenum>(operation.numbers[0]);
            break;
        default:
            break;
    }
    if (drawsDirectly(operation.op)) beginDirectDrawing();
    executeCall(operation);
    if (changesPlacement(operation.op)) canvas_.drawnArea().placementChanged();
}

void Replay::Drawing::beginDirectDrawing() {
    canvas_.beforeDrawing();
    canvas_.drawnArea().includeAll();
}

void Replay::Drawing::call(const DisplayListPtr& list) {
    const ListBuffers* buffers = buffersOf(list);
    if (buffers != nullptr && (!buffers->assumesFilled() || polygonsAreFilled()))
        execute(*buffers);
    else
        execute(*list);
}

/// None for a list that is better executed as it stands: one without vertices, or one that is called while another
/// matrix is chosen than it was compiled for.
const ListBuffers* Replay::Drawing::buffersOf(const DisplayListPtr& list) {
    if (matrixMode_ != GL_MODELVIEW) return nullptr;
    const auto known = compiled_.find(list.get());
    if (known != compiled_.end()) return known->second.buffers.get();
    if (!hasGeometry(*list)) return nullptr;
    glFlush();  // What was drawn so far is worked on while the list is compiled.
    auto buffers = std::make_unique<ListBuffers>(compileList(*list, &glyphs_));
    ++counts_.compiled;
    Compiled& entry = compiled_[list.get()];
    entry = {list, std::move(buffers)};
    return entry.buffers.get();
}

void Replay::Drawing::drawBatch(const ListBuffers& list, const Batch& batch) {
    canvas_.beforeDrawing();
    canvas_.drawnArea().include(batch.bounds);
    if (batch.glyphs) beginGlyphs(batch);
    const bool culls = batch.spheres && solidsHideTheirBacks() && canvas_.drawnArea().showsOutside(batch.bounds);
    if (culls) glEnable(GL_CULL_FACE);
    list.draw(batch);
    if (culls) glDisable(GL_CULL_FACE);
    if (batch.glyphs) glPopAttrib();
    ++counts_.drawCalls;
}

Replay::Replay() : drawing_(std::make_unique<Drawing>()) {}

Replay::~Replay() = default;

bool Replay::draw(const DisplayList& frame, int width, int height) {
    return drawing_->draw(frame, width, height);
}

void Replay::present(GLuint framebuffer, int width, int height) const {
    drawing_->canvas().copyTo(framebuffer, width, height);
}

std::vector<std::uint8_t> Replay::readPixels() const {
    return drawing_->canvas().readPixels();
}

int Replay::width() const {
    return drawing_->canvas().width();
}

int Replay::height() const {
    return drawing_->canvas().height();
}

const std::string& Replay::trouble() const {
    return drawing_->trouble();
}

const Replay::Counts& Replay::counts() const {
    return drawing_->counts();
}

}  // namespace tessaplot::gl

#include <optional>
#include <span>
#include <vector>

#include "gl/batch_builder.h"
#include "gl/compiled_list.h"
#include "gl/current_values.h"
#include "gl/glyph_lists.h"
#include "gl/glyph_store.h"
#include "gl/known_state.h"
#include "gl/mesh_placer.h"
#include "gl/passed_values.h"
#include "gl/pending_attributes.h"
#include "gl/pending_matrix.h"
#include "gl/primitive_assembly.h"
#include "gl/quadric_mesh.h"

namespace tessaplot::gl {

namespace {

/// Of a longer text most is outside the picture, and better left out than made into vertices.
constexpr std::size_t longestText = 1000;

/// True if the call works with the present modelview matrix, or replaces it.
bool needsMatrix(const Operation& operation) {
    switch (operation.op) {
        case Op::Lightfv:
            return static_cast<GLenum>(operation.numbers[1]) == GL_POSITION;
        case Op::MatrixMode:
        case Op::LoadIdentity:
        case Op::MultMatrixf:
        case Op::PopMatrix:
        case Op::Ortho:
        case Op::Frustum:
        case Op::LookAt:
        case Op::RasterPos3f:
        case Op::Sphere:
        case Op::Cylinder:
        case Op::CallList:
        case Op::CallListsText:
            return true;
        default:
            return false;
    }
}

/// True if afterwards nothing is known of what the list has set before.
bool hidesState(Op op) {
    return op == Op::CallList || op == Op::CallListsText || op == Op::PopAttrib;
}

bool drawsQuadric(Op op) {
    return op == Op::Sphere || op == Op::Cylinder;
}

GLenum typeOfText(const Operation& operation) {
    return static_cast<GLenum>(operation.numbers[1]);
}

/// An operation of a block, field by field: to copy it whole just after it was made would stall the processor.
struct BlockCall {
    explicit BlockCall(const Operation& operation)
        : numbers(operation.numbers.data()),
          count(operation.numbers.size()),
          object(operation.object),
          op(operation.op) {}
    Operation operation() const { return {op, {numbers, count}, object}; }

    const double* numbers;
    std::size_t count;
    std::size_t object;
    Op op;
};

/// What the glyphs of a text come to.
struct TextSolids {
    std::size_t vertices = 0;
    bool onlyOutlines = true;  ///< None of them is a bitmap.
};

/// Compiles one list, operation by operation.
class ListCompiler {
 public:
    ListCompiler(const DisplayList& source, GlyphStore* glyphs) : source_(source), glyphs_(glyphs) {}

    void take(const Operation& operation);
    CompiledList finish();

 private:
    /// Whether polygons are filled: as when the list was called, yes, or perhaps not.
    enum class Filling { Inherited, On, Uncertain };

    void takeOutside(const Operation& operation);
    static Filling fillingBy(const Operation& polygonMode);

    void closeBlock();
    bool readBlock();
    void drawBlock(GLenum mode, GLenum kind);
    void placeBlock();
    void keepBlock();

    bool drawQuadric(const Operation& operation);
    bool drawText(const Operation& operation);
    TextSolids solidsOf(const Operation& operation) const;

    void keep(const Operation& operation);
    void flushMatrix();

    const DisplayList& source_;
    GlyphStore* glyphs_;
    CompiledList result_;

    CurrentValues current_;  ///< What immediate mode would hold now.
    PassedValues passed_{result_.calls};
    KnownState state_;
    PendingMatrix matrix_;
    PendingAttributes attributes_;
    GLenum matrixMode_ = GL_MODELVIEW;
    Filling filling_ = Filling::Inherited;

    BatchBuilder batches_{result_, passed_};
    MeshPlacer meshes_{batches_, matrix_, current_};
    QuadricMeshes quadrics_;

    bool inBlock_ = false;
    std::vector<BlockCall> block_;
    std::vector<Vertex> blockVertices_;
    CurrentValues afterBlock_;
};

void ListCompiler::take(const Operation& operation) {
    if (operation.op == Op::Begin) inBlock_ = true;
    if (!inBlock_) {
        takeOutside(operation);
        return;
    }
    block_.emplace_back(operation);
    if (operation.op == Op::End) closeBlock();
}

void ListCompiler::takeOutside(const Operation& operation) {
    if (current_.take(operation)) return;
    if (operation.op == Op::NewQuadric || operation.op == Op::DeleteQuadric) return;
    if (matrixMode_ == GL_MODELVIEW && matrix_.take(operation)) return;
    if (attributes_.take(operation)) return;
    if (drawsQuadric(operation.op) && drawQuadric(operation)) return;
    if (operation.op == Op::CallListsText && drawText(operation)) return;
    if (state_.isRepeated(operation)) return;
    keep(operation);
    if (operation.op == Op::MatrixMode) matrixMode_ = static_cast<GLenum>(operation.numbers[0]);
    if (operation.op == Op::PolygonMode) filling_ = fillingBy(operation);
}

ListCompiler::Filling ListCompiler::fillingBy(const Operation& polygonMode) {
    const bool all = static_cast<GLenum>(polygonMode.numbers[0]) == GL_FRONT_AND_BACK;
    return all && static_cast<GLenum>(polygonMode.numbers[1]) == GL_FILL ? Filling::On : Filling::Uncertain;
}

void ListCompiler::closeBlock() {
    inBlock_ = false;
    const bool plain = readBlock();
    const auto mode = static_cast<GLenum>(*block_.front().numbers);
    const std::optional<GLenum> kind = independentKind(mode, blockVertices_.size());
    if (plain && kind)
        drawBlock(mode, *kind);
    else
        keepBlock();
    block_.clear();
    blockVertices_.clear();
}

/// Reads the vertices of the block. It is plain if all of them have the same attributes known, and nothing else but
/// vertices and attributes stands between.
bool ListCompiler::readBlock() {
    bool plain = true;
    afterBlock_ = current_;
    unsigned known = 0;
    for (const BlockCall& call : std::span(block_).subspan(1, block_.size() - 2)) {
        if (call.op == Op::Vertex3d) {
            const double* n = call.numbers;
            if (blockVertices_.empty()) known = afterBlock_.known;
            Vertex& vertex = blockVertices_.emplace_back(afterBlock_.values);
            vertex.position = {static_cast<float>(n[0]), static_cast<float>(n[1]), static_cast<float>(n[2])};
        } else if (!afterBlock_.take(call.operation())) {
            plain = false;
        }
    }
    return plain && (blockVertices_.empty() || known == afterBlock_.known);
}

void ListCompiler::drawBlock(GLenum mode, GLenum kind) {
    current_ = afterBlock_;
    if (blockVertices_.empty()) return;
    placeBlock();
    const BatchBuilder::Sort sort{.primitive = kind, .attributes = current_.known};
    forEachPrimitive(mode, blockVertices_.size(), [&](const auto& corners) {
        batches_.open(sort, corners.size());
        for (const std::size_t corner : corners)
            batches_.addCorner(blockVertices_[corner]);
    });
}

/// Puts the vertices of the block where the matrix calls that are held back would put them.
void ListCompiler::placeBlock() {
    const bool canPlaceNormals =
        current_.knows(normalAttribute) ? matrix_.normalPlacement().has_value() : matrix_.placement().keepsDirections();
    if (!canPlaceNormals) flushMatrix();
    if (matrix_.placement().isIdentity()) return;
    const bool turns = !matrix_.placement().keepsDirections();
    for (Vertex& vertex : blockVertices_) {
        vertex.position = matrix_.placement().point(vertex.position);
        if (turns) vertex.normal = matrix_.normalPlacement()->point(vertex.normal);
    }
}

/// Leaves the block to immediate mode.
void ListCompiler::keepBlock() {
    batches_.flush();
    passed_.pass(current_);
    flushMatrix();
    for (const BlockCall& call : block_) {
        result_.calls.append(source_, call.operation());
        current_.take(call.operation());
    }
    passed_.assume(current_);
}

/// False for a quadric that is better drawn each time it is called.
bool ListCompiler::drawQuadric(const Operation& operation) {
    const std::span<const double> n = operation.numbers;
    const auto count = [n](std::size_t i) { return static_cast<int>(n[i]); };
    const QuadricMesh& mesh = operation.op == Op::Sphere ? quadrics_.sphere(n[0], count(1), count(2))
                                                         : quadrics_.cylinder(n[0], n[1], n[2], count(3), count(4));
    if (mesh.triangles.empty() && mesh.quads.empty()) return true;
    if (mesh.positions.size() > VertexPool::capacity || !meshes_.hasRoomFor(mesh.positions.size())) return false;
    if (!matrix_.normalPlacement()) flushMatrix();
    // One would see the halves of quads that are not filled.
    if (!mesh.triangles.empty() && filling_ == Filling::Inherited) result_.assumesFilled = true;
    meshes_.place(mesh, filling_ != Filling::Uncertain);
    return true;
}

/// False for a text that is better drawn each time it is called.
bool ListCompiler::drawText(const Operation& operation) {
    if (glyphs_ == nullptr || !attributes_.listBase() || matrixMode_ != GL_MODELVIEW) return false;
    const std::string& text = source_.text(operation.object);
    if (text.size() > longestText) return false;
    const TextSolids solids = solidsOf(operation);
    if (!meshes_.hasRoomFor(solids.vertices) || !solids.onlyOutlines) return false;
    if (!matrix_.normalPlacement()) flushMatrix();
    const bool lit = !state_.isDisabled(GL_LIGHTING);
    forEachGlyph(*attributes_.listBase(), typeOfText(operation), text, [&](const GlyphName& glyph) {
        if (const GlyphMesh* mesh = glyphs_->mesh(glyph.code)) meshes_.place(*mesh, lit);
    });
    return true;
}

TextSolids ListCompiler::solidsOf(const Operation& operation) const {
    TextSolids solids;
    forEachGlyph(*attributes_.listBase(), typeOfText(operation), source_.text(operation.object),
                 [&](const GlyphName& glyph) {
                     if (glyph.kind != GlyphKind::Outline) solids.onlyOutlines = false;
                     const GlyphMesh* mesh = glyphs_->mesh(glyph.code);
                     if (mesh != nullptr) solids.vertices += mesh->positions.size();
                 });
    return solids;
}

/// Leaves the operation to be called as it is, after all that came before.
void ListCompiler::keep(const Operation& operation) {
    batches_.flush();
    passed_.pass(current_);
    if (needsMatrix(operation)) flushMatrix();
    attributes_.release(result_.calls);
    result_.calls.append(source_, operation);
    if (drawsQuadric(operation.op)) {
        current_.forget(normalAttribute);
        passed_.forget(normalAttribute);
    }
    if (hidesState(operation.op)) {
        current_.forget();
        passed_.forget();
        state_.forget();
        attributes_.forget();
        filling_ = Filling::Uncertain;
    }
}

void ListCompiler::flushMatrix() {
    if (matrix_.empty()) return;
    batches_.flush();
    matrix_.release(result_.calls, source_);
}

CompiledList ListCompiler::finish() {
    batches_.flush();
    passed_.pass(current_);
    flushMatrix();
    attributes_.release(result_.calls);
    if (inBlock_) keepBlock();
    return std::move(result_);
}

}  // namespace

CompiledList compileList(const DisplayList& list, GlyphStore* glyphs) {
    ListCompiler compiler(list, glyphs);
    list.forEach([&compiler](const Operation& operation) { compiler.take(operation); });
    return compiler.finish();
}

bool hasGeometry(const DisplayList& list) {
    bool found = false;
    list.forEach([&found](const Operation& operation) {
        found |= operation.op == Op::Vertex3d || operation.op == Op::CallListsText || drawsQuadric(operation.op);
    });
    return found;
}

}  // namespace tessaplot::gl

#include <algorithm>
#include <deque>
#include <iterator>

#include "gl/compiled_list.h"
#include "gl/glyph_lists.h"
#include "gl/glyph_store.h"
#include "gl/known_state.h"
#include "gl/pending_attributes.h"
#include "gl/pending_matrix.h"
#include "gl/primitive_assembly.h"
#include "gl/quadric_mesh.h"
#include "gl/vertex_pool.h"

namespace tessaplot::gl {

namespace {

/// Spheres, cylinders and glyphs become vertices up to so many in a list; those beyond are drawn each time anew.
constexpr std::size_t mostMeshVertices = 4'000'000;

/// Of a longer text most is outside the picture, and better left out than made into vertices.
constexpr std::size_t longestText = 1000;

/// The current normal, colour and texture coordinate; those not known are what they were when the list was called.
struct CurrentValues {
    unsigned known = 0;
    Vertex values;  ///< The position is not used.

    bool holds(Attribute attribute, const Vertex& wanted) const;
    void set(Attribute attribute, const Vertex& from);
};

bool same(Attribute attribute, const Vertex& a, const Vertex& b) {
    switch (attribute) {
        case normalAttribute:
            return a.normal == b.normal;
        case colorAttribute:
            return a.color == b.color;
        default:
            return a.texCoord == b.texCoord;
    }
}

bool CurrentValues::holds(Attribute attribute, const Vertex& wanted) const {
    return (known & attribute) != 0 && same(attribute, values, wanted);
}

void CurrentValues::set(Attribute attribute, const Vertex& from) {
    known |= attribute;
    if (attribute == normalAttribute) values.normal = from.normal;
    if (attribute == colorAttribute) values.color = from.color;
    if (attribute == texCoordAttribute) values.texCoord = from.texCoord;
}

/// The attribute that an operation sets, with its value in `values`; none for another operation.
unsigned takeAttribute(const Operation& operation, Vertex& values) {
    const std::span<const double> n = operation.numbers;
    const auto f = [n](std::size_t i) { return static_cast<float>(n[i]); };
    switch (operation.op) {
        case Op::Normal3d:
            values.normal = {f(0), f(1), f(2)};
            return normalAttribute;
        case Op::Color3f:
        case Op::Color3d:
            values.color = {f(0), f(1), f(2), 1};
            return colorAttribute;
        case Op::Color4f:
        case Op::Color4d:
            values.color = {f(0), f(1), f(2), f(3)};
            return colorAttribute;
        case Op::TexCoord2f:
        case Op::TexCoord2d:
            values.texCoord = {f(0), f(1)};
            return texCoordAttribute;
        default:
            return 0;
    }
}

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
    void setCurrent(const Operation& operation);

    void closeBlock();
    bool readBlock();
    void drawBlock(GLenum mode, GLenum kind);
    void placeBlock();
    void keepBlock();

    bool drawQuadric(const Operation& operation);
    void drawTwoKinds(const QuadricMesh& mesh);
    bool drawText(const Operation& operation);
    std::size_t outlineVertices(const Operation& operation, bool& onlyOutlines) const;
    void drawGlyph(const GlyphMesh& mesh);
    void appendUnlitGlyph(const GlyphMesh& mesh);
    bool hasRoomFor(std::size_t vertices);
    template <class Mesh>
    void appendFaces(const Mesh& mesh, GLenum kind, const std::vector<std::uint32_t>& faces, bool glyphs = false);

    void openBatch(GLenum kind, unsigned attributes, std::size_t vertices, bool glyphs = false);
    void flushBatch();
    void appendVertices(Batch& batch);

    void keep(const Operation& operation);
    void flushMatrix();
    void passCurrentValues();
    void pass(Attribute attribute, const Vertex& value);

    const DisplayList& source_;
    GlyphStore* glyphs_;
    CompiledList result_;

    CurrentValues current_;  ///< What immediate mode would hold now.
    CurrentValues passed_;   ///< What the context is known to hold once the calls kept so far are made.
    KnownState state_;
    PendingMatrix matrix_;
    PendingAttributes attributes_;
    GLenum matrixMode_ = GL_MODELVIEW;

    bool inBlock_ = false;
    std::vector<BlockCall> block_;
    std::vector<Vertex> blockVertices_;
    CurrentValues afterBlock_;

    Batch batch_;
    VertexPool pool_;
    std::vector<std::uint16_t> batchIndices_;

    Filling filling_ = Filling::Inherited;
    QuadricMeshes quadrics_;
    std::vector<std::uint32_t> halves_;
    bool spheres_ = false;                        ///< What is appended is spheres.
    std::deque<std::array<double, 3>> advances_;  ///< Numbers of the matrix calls that glyphs stand for.
    std::size_t meshVertices_ = 0;
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
    if (Vertex values; takeAttribute(operation, values) != 0) {
        setCurrent(operation);
        return;
    }
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

void ListCompiler::setCurrent(const Operation& operation) {
    current_.known |= takeAttribute(operation, current_.values);
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
    Vertex& values = afterBlock_.values;
    unsigned known = 0;
    for (const BlockCall& call : std::span(block_).subspan(1, block_.size() - 2)) {
        if (call.op == Op::Vertex3d) {
            const double* n = call.numbers;
            if (blockVertices_.empty()) known = afterBlock_.known;
            Vertex& vertex = blockVertices_.emplace_back(values);
            vertex.position = {static_cast<float>(n[0]), static_cast<float>(n[1]), static_cast<float>(n[2])};
        } else {
            const unsigned attribute = takeAttribute(call.operation(), values);
            afterBlock_.known |= attribute;
            if (attribute == 0) plain = false;
        }
    }
    return plain && (blockVertices_.empty() || known == afterBlock_.known);
}

void ListCompiler::drawBlock(GLenum mode, GLenum kind) {
    current_ = afterBlock_;
    if (blockVertices_.empty()) return;
    placeBlock();
    const unsigned attributes = current_.known;
    forEachPrimitive(mode, blockVertices_.size(), [&](const auto& corners) {
        openBatch(kind, attributes, corners.size());
        for (const std::size_t corner : corners)
            batchIndices_.push_back(pool_.add(blockVertices_[corner]));
    });
}

/// Puts the vertices of the block where the matrix calls that are held back would put them.
void ListCompiler::placeBlock() {
    const bool inheritsNormal = (current_.known & normalAttribute) == 0;
    if (inheritsNormal ? !matrix_.placement().keepsDirections() : !matrix_.normalPlacement()) flushMatrix();
    if (matrix_.placement().isIdentity()) return;
    const bool turns = !matrix_.placement().keepsDirections();
    for (Vertex& vertex : blockVertices_) {
        vertex.position = matrix_.placement().point(vertex.position);
        if (turns) vertex.normal = matrix_.normalPlacement()->point(vertex.normal);
    }
}

/// Leaves the block to immediate mode.
void ListCompiler::keepBlock() {
    flushBatch();
    passCurrentValues();
    flushMatrix();
    for (const BlockCall& call : block_) {
        result_.calls.append(source_, call.operation());
        setCurrent(call.operation());
    }
    passed_ = current_;
}

bool ListCompiler::drawQuadric(const Operation& operation) {
    const std::span<const double> n = operation.numbers;
    const auto count = [n](std::size_t i) { return static_cast<int>(n[i]); };
    const QuadricMesh& mesh = operation.op == Op::Sphere ? quadrics_.sphere(n[0], count(1), count(2))
                                                         : quadrics_.cylinder(n[0], n[1], n[2], count(3), count(4));
    if (mesh.triangles.empty() && mesh.quads.empty()) return true;
    if (mesh.positions.size() > VertexPool::capacity || !hasRoomFor(mesh.positions.size())) return false;
    if (!matrix_.normalPlacement()) flushMatrix();
    if (mesh.triangles.empty())
        appendFaces(mesh, GL_QUADS, mesh.quads);
    else
        drawTwoKinds(mesh);
    current_.known |= normalAttribute;
    current_.values.normal = mesh.lastNormal;
    return true;
}

/// Quads are halved to be of one kind with the triangles, so that all spheres come into one batch, unless one would see
/// the halves.
void ListCompiler::drawTwoKinds(const QuadricMesh& mesh) {
    if (filling_ == Filling::Uncertain) {
        appendFaces(mesh, GL_TRIANGLES, mesh.triangles);
        appendFaces(mesh, GL_QUADS, mesh.quads);
        return;
    }
    if (filling_ == Filling::Inherited) result_.assumesFilled = true;
    halves_ = mesh.triangles;
    for (std::size_t i = 0; i < mesh.quads.size(); i += 4) {
        const auto corner = [&mesh, i](std::size_t k) { return mesh.quads[i + k]; };
        halves_.insert(halves_.end(), {corner(0), corner(1), corner(3), corner(1), corner(2), corner(3)});
    }
    spheres_ = !matrix_.placement().mirrors();
    appendFaces(mesh, GL_TRIANGLES, halves_);
    spheres_ = false;
}

bool ListCompiler::hasRoomFor(std::size_t vertices) {
    meshVertices_ += vertices;
    return meshVertices_ <= mostMeshVertices;
}

/// False for a text that is better drawn each time it is called.
bool ListCompiler::drawText(const Operation& operation) {
    if (glyphs_ == nullptr || !attributes_.listBase() || matrixMode_ != GL_MODELVIEW) return false;
    if (source_.text(operation.object).size() > longestText) return false;
    bool onlyOutlines = true;
    if (!hasRoomFor(outlineVertices(operation, onlyOutlines)) || !onlyOutlines) return false;
    if (!matrix_.normalPlacement()) flushMatrix();
    forEachGlyph(*attributes_.listBase(), typeOfText(operation), source_.text(operation.object),
                 [this](const GlyphName& glyph) {
                     if (const GlyphMesh* mesh = glyphs_->mesh(glyph.code)) drawGlyph(*mesh);
                 });
    return true;
}

std::size_t ListCompiler::outlineVertices(const Operation& operation, bool& onlyOutlines) const {
    std::size_t vertices = 0;
    forEachGlyph(*attributes_.listBase(), typeOfText(operation), source_.text(operation.object),
                 [&](const GlyphName& glyph) {
                     if (glyph.kind != GlyphKind::Outline) onlyOutlines = false;
                     const GlyphMesh* mesh = glyphs_->mesh(glyph.code);
                     if (mesh != nullptr) vertices += mesh->positions.size();
                 });
    return vertices;
}

void ListCompiler::drawGlyph(const GlyphMesh& mesh) {
    if (!mesh.triangles.empty()) {
        if (state_.isDisabled(GL_LIGHTING))
            appendUnlitGlyph(mesh);
        else
            appendFaces(mesh, GL_TRIANGLES, mesh.triangles, true);
        current_.known |= normalAttribute;
        current_.values.normal = mesh.normals[mesh.triangles.back()];
    }
    advances_.push_back({mesh.advance, 0, 0});
    matrix_.take({Op::Translatef, advances_.back(), 0});
}

/// Without light the normals do not matter, and the corners of the solid suffice.
void ListCompiler::appendUnlitGlyph(const GlyphMesh& mesh) {
    openBatch(GL_TRIANGLES, current_.known & ~static_cast<unsigned>(normalAttribute), mesh.points.size(), true);
    const std::size_t first = pool_.vertices().size();
    Vertex vertex = current_.values;
    for (const Vector3f& point : mesh.points) {
        vertex.position = matrix_.placement().point(point);
        pool_.append(vertex);
    }
    for (const std::uint32_t index : mesh.surface)
        batchIndices_.push_back(static_cast<std::uint16_t>(first + index));
}

template <class Mesh>
void ListCompiler::appendFaces(const Mesh& mesh, GLenum kind, const std::vector<std::uint32_t>& faces, bool glyphs) {
    openBatch(kind, current_.known | normalAttribute, mesh.positions.size(), glyphs);
    const Affine& placement = matrix_.placement();
    const Affine& normals = *matrix_.normalPlacement();
    const bool turns = !placement.keepsDirections();
    const std::size_t first = pool_.extend(mesh.positions.size());
    for (std::size_t i = 0; i < mesh.positions.size(); ++i) {
        Vertex& vertex = pool_[first + i];
        vertex = current_.values;
        vertex.position = turns ? placement.point(mesh.positions[i]) : placement.moved(mesh.positions[i]);
        vertex.normal = turns ? normals.point(mesh.normals[i]) : mesh.normals[i];
    }
    const std::size_t index = batchIndices_.size();
    batchIndices_.resize(index + faces.size());
    std::transform(faces.begin(), faces.end(), batchIndices_.begin() + static_cast<std::ptrdiff_t>(index),
                   [first](std::uint32_t vertex) { return static_cast<std::uint16_t>(first + vertex); });
}

/// Makes sure that the open batch can take vertices of this sort.
void ListCompiler::openBatch(GLenum kind, unsigned attributes, std::size_t vertices, bool glyphs) {
    const bool fits = batch_.primitive == kind && batch_.attributes == attributes && batch_.glyphs == glyphs &&
                      batch_.spheres == spheres_ && pool_.room() >= vertices;
    if (batchIndices_.empty() || !fits) {
        flushBatch();
        batch_.primitive = kind;
        batch_.attributes = attributes;
        batch_.glyphs = glyphs;
        batch_.spheres = spheres_;
    }
}

/// Ends the open batch. An attribute that all of its vertices share becomes the context's current one instead.
void ListCompiler::flushBatch() {
    if (batchIndices_.empty()) return;
    const std::vector<Vertex>& vertices = pool_.vertices();
    for (const Attribute attribute : {normalAttribute, colorAttribute, texCoordAttribute}) {
        if ((batch_.attributes & attribute) == 0) continue;
        const bool shared = std::all_of(vertices.begin(), vertices.end(), [&](const Vertex& vertex) {
            return same(attribute, vertex, vertices.front());
        });
        if (!shared) continue;
        pass(attribute, vertices.front());
        batch_.attributes &= ~static_cast<unsigned>(attribute);
    }
    appendVertices(batch_);
    batch_.place = result_.calls.size();
    batch_.firstIndex = result_.indices.size();
    batch_.indexCount = batchIndices_.size();
    result_.indices.insert(result_.indices.end(), batchIndices_.begin(), batchIndices_.end());
    result_.batches.push_back(batch_);
    // What arrays leave as current values is not defined.
    passed_.known &= ~batch_.attributes;
    batch_ = {};
    batchIndices_.clear();
    pool_.clear();
}

void ListCompiler::appendVertices(Batch& batch) {
    std::vector<float>& numbers = result_.vertices[batch.attributes];
    const std::size_t size = numbersOfVertex(batch.attributes);
    batch.firstVertex = numbers.size() / size;
    numbers.resize(numbers.size() + size * pool_.vertices().size());
    float* out = numbers.data() + size * batch.firstVertex;
    const auto append = [&out](const auto& values) { out = std::copy(values.begin(), values.end(), out); };
    Bounds& bounds = batch.bounds;
    for (const Vertex& vertex : pool_.vertices()) {
        append(vertex.position);
        if ((batch.attributes & normalAttribute) != 0) append(vertex.normal);
        if ((batch.attributes & colorAttribute) != 0) append(vertex.color);
        if ((batch.attributes & texCoordAttribute) != 0) append(vertex.texCoord);
        for (std::size_t k = 0; k < 3; ++k) {
            bounds.low[k] = std::min(bounds.low[k], vertex.position[k]);
            bounds.high[k] = std::max(bounds.high[k], vertex.position[k]);
        }
    }
}

/// Leaves the operation to be called as it is, after all that came before.
void ListCompiler::keep(const Operation& operation) {
    flushBatch();
    passCurrentValues();
    if (needsMatrix(operation)) flushMatrix();
    attributes_.release(result_.calls);
    result_.calls.append(source_, operation);
    if (drawsQuadric(operation.op)) {
        current_.known &= ~static_cast<unsigned>(normalAttribute);
        passed_.known &= ~static_cast<unsigned>(normalAttribute);
    }
    if (hidesState(operation.op)) {
        current_.known = 0;
        passed_.known = 0;
        state_.forget();
        attributes_.forget();
        filling_ = Filling::Uncertain;
    }
}

void ListCompiler::flushMatrix() {
    if (matrix_.empty()) return;
    flushBatch();
    matrix_.release(result_.calls, source_);
}

void ListCompiler::passCurrentValues() {
    for (const Attribute attribute : {normalAttribute, colorAttribute, texCoordAttribute})
        if ((current_.known & attribute) != 0) pass(attribute, current_.values);
}

/// Makes `value` the context's current one.
void ListCompiler::pass(Attribute attribute, const Vertex& value) {
    if (passed_.holds(attribute, value)) return;
    passed_.set(attribute, value);
    DisplayList& calls = result_.calls;
    if (attribute == normalAttribute) calls.glNormal3d(value.normal[0], value.normal[1], value.normal[2]);
    if (attribute == colorAttribute) calls.glColor4f(value.color[0], value.color[1], value.color[2], value.color[3]);
    if (attribute == texCoordAttribute) calls.glTexCoord2d(value.texCoord[0], value.texCoord[1]);
}

CompiledList ListCompiler::finish() {
    flushBatch();
    passCurrentValues();
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

#include "gl/glyph_drawing.h"

#include <algorithm>
#include <array>

#include "gl/gl_calls.h"
#include "gl/glyph_lists.h"

namespace tessaplot::gl {

namespace {

using Matrix = std::array<double, 16>;

/// The space that the present matrices show. Of a long text most glyphs lie outside.
class VisibleSpace {
 public:
    VisibleSpace();

    /// False if nothing of a glyph shows that stands `x` further on.
    bool shows(const GlyphMesh& mesh, double x) const;

 private:
    std::array<std::array<double, 4>, 6> planes_{};  ///< A plane's factors of x, y, z and 1 are negative outside.
};

VisibleSpace::VisibleSpace() {
    Matrix view{};
    Matrix projection{};
    glGetDoublev(GL_MODELVIEW_MATRIX, view.data());
    glGetDoublev(GL_PROJECTION_MATRIX, projection.data());
    for (std::size_t column = 0; column < 4; ++column) {
        const auto clip = [&](std::size_t row) {
            double sum = 0;
            for (std::size_t k = 0; k < 4; ++k)
                sum += projection[4 * k + row] * view[4 * column + k];
            return sum;
        };
        for (std::size_t row = 0; row < 3; ++row) {
            planes_[2 * row][column] = clip(3) + clip(row);
            planes_[2 * row + 1][column] = clip(3) - clip(row);
        }
    }
}

bool VisibleSpace::shows(const GlyphMesh& mesh, double x) const {
    return std::none_of(planes_.begin(), planes_.end(), [&](const std::array<double, 4>& plane) {
        double nearest = plane[3] + plane[0] * x;
        for (std::size_t k = 0; k < 3; ++k)
            nearest += std::max(plane[k] * mesh.low[k], plane[k] * mesh.high[k]);
        return nearest < 0;
    });
}

void drawTriangles(const GlyphMesh& mesh) {
    glBegin(GL_TRIANGLES);
    for (const std::uint32_t corner : mesh.triangles) {
        glNormal3fv(mesh.normals[corner].data());
        glVertex3fv(mesh.positions[corner].data());
    }
    glEnd();
}

/// Draws outlines one beside the other along the x of the modelview matrix, and leaves that after the last one.
class OutlinePen {
 public:
    void draw(const GlyphMesh& mesh);
    void finish();

 private:
    void move();

    VisibleSpace space_;
    double drawnFrom_ = 0;  ///< Where the matrix stands, along the text.
    double at_ = 0;
    bool hasInk_ = false;
};

void OutlinePen::draw(const GlyphMesh& mesh) {
    if (!mesh.triangles.empty()) {
        hasInk_ = true;
        if (space_.shows(mesh, at_)) {
            move();
            drawTriangles(mesh);
        }
    }
    at_ += mesh.advance;
}

/// Whether it showed or not, the last glyph leaves the normal of its front.
void OutlinePen::finish() {
    if (hasInk_) glNormal3f(0, 0, 1);
    move();
}

void OutlinePen::move() {
    glTranslated(at_ - drawnFrom_, 0, 0);
    drawnFrom_ = at_;
}

void drawBitmap(const GlyphBitmap& bitmap) {
    glBitmap(bitmap.width, bitmap.height, static_cast<float>(-bitmap.left), static_cast<float>(-bitmap.bottom),
             static_cast<float>(bitmap.advance), 0, bitmap.rows.data());
}

}  // namespace

void drawText(GlyphStore& glyphs, GLenum type, std::string_view text) {
    GLint listBase = 0;
    glGetIntegerv(GL_LIST_BASE, &listBase);
    glPushAttrib(GL_POLYGON_BIT);
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    OutlinePen pen;
    forEachGlyph(static_cast<GLuint>(listBase), type, text, [&](const GlyphName& name) {
        if (name.kind == GlyphKind::Outline) {
            if (const GlyphMesh* mesh = glyphs.mesh(name.code)) pen.draw(*mesh);
        } else if (const GlyphBitmap* bitmap = glyphs.bitmap(name.code)) {
            drawBitmap(*bitmap);
        }
    });
    pen.finish();
    glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
    glPopAttrib();
}

}  // namespace tessaplot::gl

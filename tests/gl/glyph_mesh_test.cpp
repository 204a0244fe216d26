#include "gl/glyph_mesh.h"

#include <cmath>
#include <cstdlib>
#include <fstream>

#include <ft2build.h>
#include <gmock/gmock.h>
#include FT_FREETYPE_H

#include "gl/glyph_lists.h"
#include "gl/glyph_store.h"

namespace tessaplot::gl {
namespace {

constexpr int firstVisible = 33;
constexpr int lastVisible = 126;

/// What FreeType itself makes of the glyphs of a font file, at a size where a pixel is small.
class LargeGlyphs {
 public:
    explicit LargeGlyphs(const std::string& file) {
        FT_Init_FreeType(&library_);
        FT_New_Face(library_, file.c_str(), 0, &face_);
        FT_Set_Pixel_Sizes(face_, 0, pixels);
    }
    ~LargeGlyphs() {
        FT_Done_Face(face_);
        FT_Done_FreeType(library_);
    }
    LargeGlyphs(const LargeGlyphs&) = delete;
    LargeGlyphs& operator=(const LargeGlyphs&) = delete;

    /// The inked area in em squares.
    double area(int code) {
        FT_Load_Char(face_, static_cast<FT_ULong>(code), FT_LOAD_RENDER | FT_LOAD_NO_HINTING);
        const FT_Bitmap& image = face_->glyph->bitmap;
        double sum = 0;
        for (unsigned row = 0; row < image.rows; ++row)
            for (unsigned column = 0; column < image.width; ++column)
                sum += image.buffer[static_cast<int>(row) * image.pitch + static_cast<int>(column)] / 255.0;
        return sum / (pixels * pixels);
    }
    double advance() const { return static_cast<double>(face_->glyph->linearHoriAdvance) / 65536 / pixels; }

 private:
    static constexpr int pixels = 500;
    FT_Library library_ = nullptr;
    FT_Face face_ = nullptr;
};

Vector3f cross(const Vector3f& a, const Vector3f& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

Vector3f minus(const Vector3f& a, const Vector3f& b) {
    return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}

double dot(const Vector3f& a, const Vector3f& b) {
    return double{a[0]} * b[0] + double{a[1]} * b[1] + double{a[2]} * b[2];
}

/// The volume inside closed triangles that turn left as seen from outside.
double volume(const std::vector<Vector3f>& points, const std::vector<std::uint32_t>& triangles) {
    double sum = 0;
    for (std::size_t i = 0; i < triangles.size(); i += 3)
        sum += dot(points[triangles[i]], cross(points[triangles[i + 1]], points[triangles[i + 2]])) / 6;
    return sum;
}

TEST(GlyphMesh, EveryGlyphIsASolidOverTheAreaThatTheFontHasInk) {
    GlyphStore glyphs;
    LargeGlyphs large(GlyphFont("Arial").file());
    for (int code = firstVisible; code <= lastVisible; ++code) {
        const GlyphMesh* mesh = glyphs.mesh(static_cast<unsigned char>(code));
        ASSERT_NE(mesh, nullptr);
        const double area = large.area(code);
        ASSERT_FALSE(mesh->triangles.empty()) << code;
        EXPECT_NEAR(volume(mesh->points, mesh->surface), area * glyphThickness, 0.012 * area * glyphThickness) << code;
        EXPECT_NEAR(volume(mesh->positions, mesh->triangles), volume(mesh->points, mesh->surface), 1e-6) << code;
        EXPECT_NEAR(mesh->advance, large.advance(), 1e-3) << code;
        for (const Vector3f& point : mesh->points)
            EXPECT_TRUE(std::isfinite(point[0]) && std::isfinite(point[1]) && std::abs(point[0]) < 2) << code;
    }
}

TEST(GlyphMesh, NormalsStandOnTheTrianglesAndLookOutside) {
    GlyphStore glyphs;
    for (int code = firstVisible; code <= lastVisible; ++code) {
        const GlyphMesh& mesh = *glyphs.mesh(static_cast<unsigned char>(code));
        ASSERT_EQ(mesh.normals.size(), mesh.positions.size());
        for (std::size_t i = 0; i < mesh.triangles.size(); i += 3) {
            const auto corner = [&](std::size_t k) { return mesh.positions[mesh.triangles[i + k]]; };
            const Vector3f across = cross(minus(corner(1), corner(0)), minus(corner(2), corner(0)));
            const Vector3f& normal = mesh.normals[mesh.triangles[i]];
            EXPECT_NEAR(dot(normal, normal), 1, 1e-5);
            EXPECT_GE(dot(across, normal), 0.999 * std::sqrt(dot(across, across)) - 1e-9) << code;
        }
    }
}

TEST(GlyphMesh, BlanksMoveOnAndCodesWithoutAGlyphDoNot) {
    GlyphStore glyphs;
    EXPECT_TRUE(glyphs.mesh(' ')->triangles.empty());
    EXPECT_NEAR(glyphs.mesh(' ')->advance, 0.278, 0.02);
    for (const unsigned char code : {'\0', '\a', '\x1f'}) {
        EXPECT_TRUE(glyphs.mesh(code)->triangles.empty());
        EXPECT_TRUE(glyphs.bitmap(code)->rows.empty());
    }
    EXPECT_EQ(glyphs.mesh(200), nullptr);
    EXPECT_EQ(glyphs.bitmap(200), nullptr);
}

TEST(GlyphMesh, CrossingAndDegenerateContoursAreFilledWithoutAFault) {
    GlyphOutline outline;
    outline.contours = {{{0, 0}, {1, 0}, {1, 1}, {0, 1}}, {{0.5, 0.5}, {1.5, 0.5}, {1.5, 1.5}, {0.5, 1.5}}};
    const GlyphMesh overlapping = extrude(outline);
    double front = 0;
    for (std::size_t i = 0; i < overlapping.surface.size(); i += 3) {
        const auto corner = [&](std::size_t k) { return overlapping.points[overlapping.surface[i + k]]; };
        if (corner(0)[2] == 0 && corner(1)[2] == 0 && corner(2)[2] == 0)
            front += cross(minus(corner(1), corner(0)), minus(corner(2), corner(0)))[2] / 2;
    }
    EXPECT_NEAR(front, 1.75, 1e-5);
    outline.contours = {{{0, 0}, {1, 0}, {2, 0}}};
    EXPECT_TRUE(extrude(outline).triangles.empty());
}

TEST(GlyphBitmap, GlyphsFitFifteenRows) {
    GlyphStore glyphs;
    int top = 0;
    int bottom = 0;
    for (int code = firstVisible; code <= lastVisible; ++code) {
        const GlyphBitmap& glyph = *glyphs.bitmap(static_cast<unsigned char>(code));
        EXPECT_EQ(glyph.rows.size(), static_cast<std::size_t>((glyph.width + 7) / 8 * glyph.height)) << code;
        EXPECT_THAT(glyph.rows, testing::Contains(testing::Ne(0))) << code;
        EXPECT_GE(glyph.advance, 2) << code;
        EXPECT_LE(glyph.width, 15) << code;
        top = std::max(top, glyph.bottom + glyph.height);
        bottom = std::min(bottom, glyph.bottom);
    }
    EXPECT_LE(top - bottom, 15);
    EXPECT_GE(top - bottom, 12);
}

TEST(GlyphLists, BytesAboveAsciiNameNoGlyphWhateverTheirSign) {
    for (const GLuint base : {FontList3 - 32, FontList5 - 32, FontList15}) {
        for (int byte = 0; byte < 256; ++byte) {
            const std::string text(1, static_cast<char>(byte));
            for (const GLenum type : {GL_BYTE, GL_UNSIGNED_BYTE}) {
                int glyphs = 0;
                forEachGlyph(base, type, text, [&](const GlyphName& glyph) {
                    ++glyphs;
                    EXPECT_EQ(glyph.code, byte);
                });
                const bool has = byte < 128 && (base == FontList15 || byte >= 32);
                EXPECT_EQ(glyphs, has ? 1 : 0) << base << " " << byte;
            }
        }
    }
    EXPECT_FALSE(glyphOf(900));
}

TEST(GlyphStoreDeathTest, AMachineWithoutFontsHasNoGlyphsAndSaysSo) {
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    const std::string config = testing::TempDir() + "/no_fonts.conf";
    std::ofstream(config) << "<fontconfig></fontconfig>";
    const auto askForGlyphs = [&config] {
        setenv("FONTCONFIG_FILE", config.c_str(), 1);
        GlyphStore glyphs;
        const bool none = glyphs.mesh('A') == nullptr && glyphs.bitmap('A') == nullptr;
        std::exit(none && glyphs.trouble().starts_with("Unable to create font") ? 0 : 1);
    };
    EXPECT_EXIT(askForGlyphs(), testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace tessaplot::gl

#include "gl/glyph_font.h"

#include <cmath>

#include <ft2build.h>
#include FT_FREETYPE_H

#include "gl/font_file.h"
#include "gl/outline_reader.h"

namespace tessaplot::gl {

/// A face of FreeType with its library.
struct GlyphFont::Face {
    FT_Library library = nullptr;
    FT_Face face = nullptr;
    std::string file;

    Face() = default;
    ~Face() {
        if (face != nullptr) FT_Done_Face(face);
        if (library != nullptr) FT_Done_FreeType(library);
    }
    Face(const Face&) = delete;
    Face& operator=(const Face&) = delete;

    bool load(char32_t character, FT_Int32 flags) const {
        const FT_UInt glyph = FT_Get_Char_Index(face, character);
        return glyph != 0 && FT_Load_Glyph(face, glyph, flags) == 0;
    }
};

GlyphFont::GlyphFont(const std::string& family) : face_(std::make_unique<Face>()) {
    const FontFile file = findFont(family);
    face_->file = file.path;
    if (FT_Init_FreeType(&face_->library) != 0) failFont("FreeType does not start.");
    if (FT_New_Face(face_->library, file.path.c_str(), file.faceIndex, &face_->face) != 0)
        failFont("the file \"" + file.path + "\" is no font.");
    if (!FT_IS_SCALABLE(face_->face)) failFont("the font \"" + file.path + "\" has no outlines.");
}

GlyphFont::~GlyphFont() = default;
GlyphFont::GlyphFont(GlyphFont&&) noexcept = default;
GlyphFont& GlyphFont::operator=(GlyphFont&&) noexcept = default;

const std::string& GlyphFont::file() const {
    return face_->file;
}

GlyphOutline GlyphFont::outline(char32_t character) const {
    GlyphOutline outline;
    if (!face_->load(character, FT_LOAD_NO_SCALE)) return outline;
    const FT_GlyphSlot slot = face_->face->glyph;
    if (slot->format != FT_GLYPH_FORMAT_OUTLINE) return outline;
    const double unitsPerEm = face_->face->units_per_EM;
    outline.advance = static_cast<double>(slot->metrics.horiAdvance) / unitsPerEm;
    outline.contours = contoursOf(slot->outline, unitsPerEm);
    return outline;
}

GlyphBitmap GlyphFont::bitmap(char32_t character, int height) const {
    constexpr int pixel = 64;
    FT_Size_RequestRec size{};
    size.type = FT_SIZE_REQUEST_TYPE_REAL_DIM;
    size.height = height * pixel;
    GlyphBitmap bitmap;
    if (FT_Request_Size(face_->face, &size) != 0) return bitmap;
    if (!face_->load(character, FT_LOAD_RENDER | FT_LOAD_TARGET_MONO)) return bitmap;
    const FT_GlyphSlot slot = face_->face->glyph;
    const FT_Bitmap& image = slot->bitmap;
    bitmap.width = static_cast<int>(image.width);
    bitmap.height = static_cast<int>(image.rows);
    bitmap.left = slot->bitmap_left;
    bitmap.bottom = slot->bitmap_top - bitmap.height;
    bitmap.advance = static_cast<int>(std::lround(static_cast<double>(slot->advance.x) / pixel));
    const int bytes = (bitmap.width + 7) / 8;
    for (int row = bitmap.height - 1; row >= 0; --row) {
        const unsigned char* first = image.buffer + static_cast<std::ptrdiff_t>(row) * image.pitch;
        bitmap.rows.insert(bitmap.rows.end(), first, first + bytes);
    }
    return bitmap;
}

}  // namespace tessaplot::gl

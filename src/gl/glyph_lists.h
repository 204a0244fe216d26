#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include <GL/gl.h>

namespace tessaplot::gl {

// Numbers of the glyph lists: one list a character code, from a base on. They lie so far from one another and from the
// scene's own list that a byte without a glyph, signed or not, never meets a list of something else.

/// First list of the outline font of labels; it stands for code 32, so that glListBase takes the base less 32.
inline constexpr GLuint FontList3 = 2032;
/// First list of the outline font of titles, likewise for code 32. An outline's em square is one unit at any height.
inline constexpr GLuint FontList5 = 3032;
/// First list of the bitmap font, for code 0.
inline constexpr GLuint FontList15 = 4000;

enum class GlyphKind { Outline, Bitmap };

/// A glyph as a list number names it.
struct GlyphName {
    GlyphKind kind;
    unsigned char code;
};

/// The glyph that a list stands for: codes 32 to 127 of the outline fonts, 0 to 127 of the bitmap font; none for any
/// other list.
constexpr std::optional<GlyphName> glyphOf(GLuint list) {
    struct Run {
        GLuint base;
        unsigned firstCode;
        GlyphKind kind;
    };
    constexpr unsigned codes = 128;
    constexpr std::array<Run, 3> runs{
        {{FontList3, 32, GlyphKind::Outline}, {FontList5, 32, GlyphKind::Outline}, {FontList15, 0, GlyphKind::Bitmap}}};
    for (const Run& run : runs) {
        if (list < run.base || list - run.base >= codes - run.firstCode) continue;
        return GlyphName{run.kind, static_cast<unsigned char>(list - run.base + run.firstCode)};
    }
    return std::nullopt;
}

/// Calls `visit` with the glyph of each byte of `text` that has one, as glCallLists would call the lists: `type`,
/// GL_BYTE or GL_UNSIGNED_BYTE, says how bytes above 127 count from the base.
template <class Visitor>
void forEachGlyph(GLuint listBase, GLenum type, std::string_view text, Visitor&& visit) {
    for (const char c : text) {
        const auto offset =
            type == GL_BYTE ? static_cast<GLuint>(static_cast<std::int8_t>(c)) : static_cast<std::uint8_t>(c);
        if (const std::optional<GlyphName> glyph = glyphOf(listBase + offset)) visit(*glyph);
    }
}

}  // namespace tessaplot::gl

#pragma once

#include <array>
#include <future>
#include <optional>
#include <string>

#include "gl/glyph_font.h"
#include "gl/glyph_mesh.h"

namespace tessaplot::gl {

/// The glyphs of the scene's texts, each made on first use. Needs no OpenGL context.
///
/// The face is looked for on a thread of its own from the start on, since Fontconfig takes as long over its files as a
/// whole picture does. Without a face there are no glyphs, and texts draw nothing.
class GlyphStore {
 public:
    explicit GlyphStore(const std::string& family = "Arial");

    /// The solid of the glyph of an ASCII code; none without a face.
    const GlyphMesh* mesh(unsigned char code);
    /// The glyph of an ASCII code in 15 pixels; none without a face.
    const GlyphBitmap* bitmap(unsigned char code);

    /// Why there is no face; empty if there is one, or if none has been needed yet.
    const std::string& trouble() const { return trouble_; }

 private:
    static constexpr std::size_t codes = 128;

    const GlyphFont* font();

    std::future<GlyphFont> opening_;
    std::optional<GlyphFont> font_;
    std::string trouble_;
    std::array<std::optional<GlyphMesh>, codes> meshes_;
    std::array<std::optional<GlyphBitmap>, codes> bitmaps_;
};

}  // namespace tessaplot::gl

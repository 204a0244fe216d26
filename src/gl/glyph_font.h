#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace tessaplot::gl {

using OutlinePoint = std::array<double, 2>;

/// The outline of a glyph in units of the em square, curves as short lines: closed contours that do not repeat their
/// first point, with the ink on their left.
struct GlyphOutline {
    std::vector<std::vector<OutlinePoint>> contours;
    double advance = 0;  ///< From this glyph's origin to that of the next.
};

/// A glyph in black and white as glBitmap takes it: rows from the bottom up, eight pixels a byte from the highest bit.
struct GlyphBitmap {
    int width = 0;
    int height = 0;
    int left = 0;    ///< Of the first column, from the origin to the right.
    int bottom = 0;  ///< Of the first row, from the base line upward.
    int advance = 0;
    std::vector<std::uint8_t> rows;
};

/// The face of the scene's texts. Needs no OpenGL context.
class GlyphFont {
 public:
    /// Opens the face that Fontconfig finds for `family`, which may be a substitute of like measures. Throws
    /// base::Failure (FileUnreadable), "Unable to create font", if there is none that can be used.
    explicit GlyphFont(const std::string& family);
    ~GlyphFont();
    GlyphFont(GlyphFont&&) noexcept;
    GlyphFont& operator=(GlyphFont&&) noexcept;

    /// The glyph of a character; nothing, with an advance of 0, if the face lacks it.
    GlyphOutline outline(char32_t character) const;
    /// The glyph where ascent and descent of the face take `height` pixels together; likewise.
    GlyphBitmap bitmap(char32_t character, int height) const;

    const std::string& file() const;

 private:
    struct Face;
    std::unique_ptr<Face> face_;
};

}  // namespace tessaplot::gl

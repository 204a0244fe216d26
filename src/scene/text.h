#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "base/color.h"
#include "gl/display_list.h"
#include "gl/glyph_lists.h"

namespace tessaplot::scene {

using gl::FontList15;
using gl::FontList3;
using gl::FontList5;

/// An angle in degrees and the axis of the rotation.
using TextRotation = std::array<double, 4>;

/// The current colour becomes `color`.
void SetGLColor(gl::DisplayList& list, base::PackedColor color);

/// Draws `text` with the glyphs of `base` (FontList15) from a point of the scene on, at a fixed size on the screen. An
/// empty text sets colour and raster position alone.
void DrawBitmapText(gl::DisplayList& list, GLuint base, std::string_view text, float x, float y, float z, float red,
                    float green, float blue);

/// Draws `text` with the outlines of `base` (FontList3 or FontList5) as a solid in the scene: it starts at the point,
/// turns about it, and its em square is 0.6 units. Without a colour it takes the current one.
void DrawText3D(gl::DisplayList& list, GLuint base, std::string_view text, double x, double y, double z,
                const TextRotation& rotation, std::optional<base::PackedColor> color);

/// The Windows-1252 code of each character of a UTF-8 text; a question mark for a character that the page lacks.
/// Codes above 127 have no glyph and draw nothing.
std::string TextToBytes(std::string_view text);

/// How many characters a UTF-8 text has.
std::size_t characterCount(std::string_view text);

}  // namespace tessaplot::scene

#pragma once

#include <vector>

#include <ft2build.h>
#include FT_FREETYPE_H

#include "gl/glyph_font.h"

namespace tessaplot::gl {

/// The contours of an outline of FreeType as `GlyphOutline` holds them; none for an outline that FreeType cannot read.
std::vector<std::vector<OutlinePoint>> contoursOf(FT_Outline& outline, double unitsPerEm);

}  // namespace tessaplot::gl

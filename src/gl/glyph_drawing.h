#pragma once

#include <string_view>

#include <GL/gl.h>

#include "gl/glyph_store.h"

namespace tessaplot::gl {

/// glCallLists of `text` with the context's list base, where lists are glyphs: an outline moves the matrix on by its
/// advance, a bitmap the raster position. Outlines are filled whatever the polygon mode is. Lists that are no glyphs
/// draw nothing.
void drawText(GlyphStore& glyphs, GLenum type, std::string_view text);

}  // namespace tessaplot::gl

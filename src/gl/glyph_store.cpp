#include "gl/glyph_store.h"

#include "base/failure.h"

namespace tessaplot::gl {

namespace {

constexpr int bitmapHeight = 15;

}  // namespace

GlyphStore::GlyphStore(const std::string& family)
    : opening_(std::async(std::launch::async, [family] { return GlyphFont(family); })) {}

const GlyphFont* GlyphStore::font() {
    if (opening_.valid()) {
        try {
            font_ = opening_.get();
        } catch (const base::Failure& failure) {
            trouble_ = failure.what();
        }
    }
    return font_ ? &*font_ : nullptr;
}

const GlyphMesh* GlyphStore::mesh(unsigned char code) {
    if (code >= codes || font() == nullptr) return nullptr;
    std::optional<GlyphMesh>& mesh = meshes_[code];
    if (!mesh) mesh = extrude(font_->outline(code));
    return &*mesh;
}

const GlyphBitmap* GlyphStore::bitmap(unsigned char code) {
    if (code >= codes || font() == nullptr) return nullptr;
    std::optional<GlyphBitmap>& bitmap = bitmaps_[code];
    if (!bitmap) bitmap = font_->bitmap(code, bitmapHeight);
    return &*bitmap;
}

}  // namespace tessaplot::gl

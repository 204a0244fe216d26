#include "gl/texture_store.h"

#include "base/failure.h"
#include "gl/gl_calls.h"

namespace tessaplot::gl {

namespace {

void upload(const TextureImage& image) {
    const std::size_t bytes = static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.height) *
                              static_cast<std::size_t>(image.channels);
    if (image.width < 1 || image.height < 1 || image.pixels.size() < bytes)
        throw base::Failure(base::FailureCode::OpenGl, "A texture's image holds fewer pixels than its size says.");
    GLint alignment = 0;
    glGetIntegerv(GL_UNPACK_ALIGNMENT, &alignment);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, image.width, image.height, 0, image.channels == 4 ? GL_RGBA : GL_RGB,
                 GL_UNSIGNED_BYTE, image.pixels.data());
    glPixelStorei(GL_UNPACK_ALIGNMENT, alignment);
    checkErrors("take an image as a texture");
}

}  // namespace

TextureStore::~TextureStore() {
    for (const auto& [image, entry] : entries_)
        glDeleteTextures(1, &entry.texture);
}

void TextureStore::bind(const std::shared_ptr<const TextureImage>& image) {
    Entry& entry = entries_[image.get()];
    const bool known = entry.texture != 0 && !entry.image.expired();
    if (entry.texture == 0) glGenTextures(1, &entry.texture);
    glBindTexture(GL_TEXTURE_2D, entry.texture);
    if (known) return;
    upload(*image);
    entry.image = image;
}

void TextureStore::dropUnused() {
    std::erase_if(entries_, [](const auto& item) {
        if (!item.second.image.expired()) return false;
        glDeleteTextures(1, &item.second.texture);
        return true;
    });
}

}  // namespace tessaplot::gl

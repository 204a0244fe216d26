#pragma once

#include <memory>
#include <unordered_map>

#include <GL/gl.h>

#include "gl/display_list.h"

namespace tessaplot::gl {

/// The textures of the context, one for each image, handed to it once.
class TextureStore {
 public:
    TextureStore() = default;
    ~TextureStore();
    TextureStore(const TextureStore&) = delete;
    TextureStore& operator=(const TextureStore&) = delete;

    /// Binds the texture of the image, made on first use.
    void bind(const std::shared_ptr<const TextureImage>& image);
    /// Frees the textures whose images no list holds any more.
    void dropUnused();

 private:
    struct Entry {
        std::weak_ptr<const TextureImage> image;
        GLuint texture = 0;
    };
    std::unordered_map<const TextureImage*, Entry> entries_;
};

}  // namespace tessaplot::gl

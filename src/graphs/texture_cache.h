#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <vector>

#include "gl/display_list.h"

namespace tessaplot::graphs {

using TextureImagePtr = std::shared_ptr<const gl::TextureImage>;

/// The textures in use, so that a scene that is recorded anew loads no file again that has not changed. It keeps no
/// image alive.
class TextureCache {
 public:
    /// The image made of the file as it stands now; null for none.
    TextureImagePtr find(const std::filesystem::path& path) const;
    void keep(const std::filesystem::path& path, const TextureImagePtr& image);

 private:
    /// What tells a file from a later one of the same name.
    struct Stamp {
        std::filesystem::file_time_type written;
        std::uintmax_t size = 0;
        friend bool operator==(const Stamp&, const Stamp&) = default;
    };
    struct Entry {
        std::filesystem::path path;
        Stamp stamp;
        std::weak_ptr<const gl::TextureImage> image;
    };
    static Stamp stampOf(const std::filesystem::path& path);

    std::vector<Entry> entries_;
};

}  // namespace tessaplot::graphs

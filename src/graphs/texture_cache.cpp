#include "graphs/texture_cache.h"

#include <algorithm>
#include <system_error>

namespace tessaplot::graphs {

namespace fs = std::filesystem;

TextureCache::Stamp TextureCache::stampOf(const fs::path& path) {
    std::error_code ignored;
    return {fs::last_write_time(path, ignored), fs::file_size(path, ignored)};
}

TextureImagePtr TextureCache::find(const fs::path& path) const {
    const auto entry = std::ranges::find(entries_, path, &Entry::path);
    if (entry == entries_.end() || entry->stamp != stampOf(path)) return nullptr;
    return entry->image.lock();
}

void TextureCache::keep(const fs::path& path, const TextureImagePtr& image) {
    std::erase_if(entries_, [&](const Entry& entry) { return entry.path == path || entry.image.expired(); });
    entries_.push_back({path, stampOf(path), image});
}

}  // namespace tessaplot::graphs

#include "pictures/picture_reader.h"

#include "pictures/formats.h"

namespace tessaplot::pictures {

platform::Picture readPicture(const std::filesystem::path& path) {
    return formats().read(path);
}

}  // namespace tessaplot::pictures

#include "qt/picture_image.h"

#include "pictures/picture_reader.h"

namespace tessaplot::qt {

QImage readImage(const std::filesystem::path& path) {
    const platform::Picture picture = pictures::readPicture(path);
    const QImage borrowed(picture.pixels.data(), picture.width, picture.height, qsizetype{picture.width} * 3,
                          QImage::Format_RGB888);
    return borrowed.copy();
}

}  // namespace tessaplot::qt

#include <QByteArray>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

#include "base/failure.h"
#include "pictures/qt_formats.h"

namespace tessaplot::pictures {

namespace {

constexpr std::int64_t mostPixels = 64'000'000;

[[noreturn]] void failToRead(const std::filesystem::path& path, const QString& reason) {
    throw base::Failure(base::FailureCode::FileUnreadable,
                        "The picture \"" + path.string() + "\" cannot be read: " + reason.toStdString() + '.');
}

bool isKnown(const QByteArray& format) {
    static constexpr std::array<const char*, 4> known{"bmp", "jpg", "jpeg", "gif"};
    return std::ranges::any_of(known, [&](const char* name) { return format == name; });
}

platform::Picture pixelsOf(const QImage& image) {
    const QImage plain = image.convertToFormat(QImage::Format_RGB888);
    platform::Picture picture{plain.width(), plain.height(), {}};
    const auto rowBytes = static_cast<std::size_t>(plain.width()) * 3;
    picture.pixels.reserve(rowBytes * static_cast<std::size_t>(plain.height()));
    for (int y = 0; y < plain.height(); ++y) {
        const std::uint8_t* row = plain.constScanLine(y);
        picture.pixels.insert(picture.pixels.end(), row, row + rowBytes);
    }
    return picture;
}

}  // namespace

platform::Picture readWithQt(const std::filesystem::path& path) {
    QFile file(QFile::decodeName(path.c_str()));
    if (!file.open(QIODevice::ReadOnly)) failToRead(path, file.errorString());
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    if (!isKnown(reader.format())) failToRead(path, "it holds no BMP, JPG or GIF picture");
    const QSize size = reader.size();
    if (size.isValid() && std::int64_t{size.width()} * size.height() > mostPixels)
        failToRead(path, "it has more than 64 million pixels");
    const QImage image = reader.read();
    if (image.isNull()) failToRead(path, reader.errorString());
    return pixelsOf(image);
}

}  // namespace tessaplot::pictures

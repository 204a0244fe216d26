#include "pictures/picture_file.h"

#include <QByteArray>
#include <QFile>
#include <QImage>
#include <QImageWriter>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <array>
#include <string>

#include "base/failure.h"

namespace tessaplot::pictures {

namespace {

/// Level 1 of zlib in the writer's scale of 100: on a dense wire mesh it takes less than half the time of the writer's
/// own choice for a file a tenth larger.
constexpr int fastCompression = 12;

constexpr int jpegQuality = 92;

/// A page shows the picture in the size that it has on a common screen.
constexpr int pixelsPerInch = 96;
constexpr double pointsPerPixel = 72.0 / pixelsPerInch;

std::string quoted(const std::filesystem::path& path) {
    return '"' + path.string() + '"';
}

[[noreturn]] void failToWrite(const std::filesystem::path& path, const QString& reason) {
    throw base::Failure(base::FailureCode::FileUnwritable,
                        "The picture " + quoted(path) + " cannot be written: " + reason.toStdString() + '.');
}

QByteArray formatOf(const std::filesystem::path& path) {
    const QByteArray extension = QByteArray::fromStdString(path.extension().string()).toLower();
    static constexpr std::array<const char*, 5> known{".png", ".bmp", ".pdf", ".jpg", ".jpeg"};
    for (const char* candidate : known)
        if (extension == candidate) return extension.mid(1);
    throw base::Failure(base::FailureCode::BadInput,
                        "The name of the picture " + quoted(path) + " must end in .png, .bmp, .pdf, .jpg or .jpeg.");
}

/// The pixels as an image that borrows them.
QImage imageOf(const std::filesystem::path& path, const Pixels& pixels) {
    const bool sensible = pixels.width > 0 && pixels.height > 0 && (pixels.channels == 3 || pixels.channels == 4);
    const std::int64_t rowBytes = std::int64_t{pixels.width} * pixels.channels;
    if (!sensible || static_cast<std::int64_t>(pixels.bytes.size()) != rowBytes * pixels.height)
        throw base::Failure(base::FailureCode::BadInput,
                            "The pixels of " + quoted(path) + " do not fill a picture of the stated size.");
    return {pixels.bytes.data(), pixels.width, pixels.height, static_cast<qsizetype>(rowBytes),
            pixels.channels == 3 ? QImage::Format_RGB888 : QImage::Format_RGBA8888};
}

bool writePage(QIODevice& device, const QImage& image) {
    QPdfWriter page(&device);
    page.setCreator("Tessaplot");
    page.setResolution(pixelsPerInch);
    page.setPageSize(QPageSize(QSizeF(image.size()) * pointsPerPixel, QPageSize::Point, {}, QPageSize::ExactMatch));
    page.setPageMargins({});
    QPainter painter;
    if (!painter.begin(&page)) return false;
    painter.setRenderHint(QPainter::LosslessImageRendering);
    painter.drawImage(0, 0, image);
    return painter.end();
}

void writeImage(const std::filesystem::path& path, QIODevice& device, const QByteArray& format, const QImage& image) {
    QImageWriter writer(&device, format);
    if (format == "png")
        writer.setCompression(fastCompression);
    else
        writer.setQuality(jpegQuality);
    if (!writer.write(image)) failToWrite(path, writer.errorString());
}

}  // namespace

void writePicture(const std::filesystem::path& path, const Pixels& pixels) {
    const QByteArray format = formatOf(path);
    const QImage image = imageOf(path, pixels);

    QSaveFile file(QFile::decodeName(path.c_str()));
    if (!file.open(QIODevice::WriteOnly)) failToWrite(path, file.errorString());
    if (format != "pdf")
        writeImage(path, file, format, image);
    else if (!writePage(file, image))
        failToWrite(path, "the page cannot be drawn");
    if (!file.commit()) failToWrite(path, file.errorString());
}

}  // namespace tessaplot::pictures

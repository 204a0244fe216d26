#include <QByteArray>
#include <QFile>
#include <QImage>
#include <QImageWriter>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <string>

#include "base/failure.h"
#include "pictures/qt_formats.h"

namespace tessaplot::pictures {

namespace {

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
    return QByteArray::fromStdString(path.extension().string()).toLower().mid(1);
}

/// The pixels as an image that borrows them.
QImage imageOf(const Pixels& pixels) {
    return {pixels.bytes.data(), pixels.width, pixels.height, qsizetype{pixels.width} * pixels.channels,
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
    writer.setQuality(jpegQuality);
    if (!writer.write(image)) failToWrite(path, writer.errorString());
}

}  // namespace

void writeWithQt(const std::filesystem::path& path, const Pixels& pixels) {
    const QByteArray format = formatOf(path);
    const QImage image = imageOf(pixels);
    QSaveFile file(QFile::decodeName(path.c_str()));
    if (!file.open(QIODevice::WriteOnly)) failToWrite(path, file.errorString());
    if (format != "pdf")
        writeImage(path, file, format, image);
    else if (!writePage(file, image))
        failToWrite(path, "the page cannot be drawn");
    if (!file.commit()) failToWrite(path, file.errorString());
}

}  // namespace tessaplot::pictures

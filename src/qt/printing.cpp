#include "qt/printing.h"

#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QWidget>

#include "base/failure.h"
#include "qt/picture_image.h"

namespace tessaplot::qt {

void printPictureFile(QWidget* parent, const std::filesystem::path& path) {
    const QImage image = readImage(path);
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName("Tessaplot");
    printer.setCreator("Tessaplot");
    printer.setPageOrientation(image.width() > image.height() ? QPageLayout::Landscape : QPageLayout::Portrait);
    QPrintDialog dialog(&printer, parent);
    dialog.setObjectName("PrintDialog");
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
    if (dialog.exec() != QDialog::Accepted) return;
    if (!printImage(printer, image, parent->logicalDpiX() * parent->devicePixelRatioF()))
        throw base::Failure(base::FailureCode::FileUnwritable, "The printer does not take the page.");
}

bool printImage(QPrinter& printer, const QImage& image, double pixelsPerInch) {
    QPainter painter;
    if (!painter.begin(&printer)) return false;
    const QSizeF page = printer.pageRect(QPrinter::DevicePixel).size();
    QSizeF size = QSizeF(image.size()) * (printer.resolution() / pixelsPerInch);
    if (size.width() > page.width() || size.height() > page.height()) size.scale(page, Qt::KeepAspectRatio);
    painter.setRenderHint(QPainter::LosslessImageRendering);
    painter.drawImage(QRectF({}, size), image);
    return painter.end();
}

}  // namespace tessaplot::qt

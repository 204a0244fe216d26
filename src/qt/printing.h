#pragma once

#include <QImage>
#include <filesystem>

class QPrinter;
class QWidget;

namespace tessaplot::qt {

/// Asks for a printer, or a PDF file, and prints the picture of a bitmap file on one page; nothing if the user cancels.
/// Throws FileUnreadable for a file that is no picture, FileUnwritable if the printer does not take the page.
void printPictureFile(QWidget* parent, const std::filesystem::path& path);

/// Draws the picture from the origin of the page in the size that it has on the screen, or smaller where the page could
/// not hold all of it. False if the printer does not take the page.
bool printImage(QPrinter& printer, const QImage& image, double pixelsPerInch);

}  // namespace tessaplot::qt

#include "qt/clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include "qt/picture_image.h"
#include "qt/text.h"

namespace tessaplot::qt {

std::string clipboardText() {
    return QGuiApplication::clipboard()->text().toStdString();
}

void setClipboardText(std::string_view text) {
    QGuiApplication::clipboard()->setText(qString(text));
}

void copyPictureFile(const std::filesystem::path& path) {
    QGuiApplication::clipboard()->setImage(readImage(path));
}

}  // namespace tessaplot::qt

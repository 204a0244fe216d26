#include "qt/desktop.h"

#include <QApplication>
#include <QColorDialog>
#include <QDesktopServices>
#include <QFileInfo>
#include <QFontDialog>
#include <QUrl>
#include <memory>

#include "base/failure.h"
#include "pictures/picture_reader.h"
#include "qt/clipboard.h"
#include "qt/file_chooser.h"
#include "qt/file_type.h"
#include "qt/help_window.h"
#include "qt/main_window.h"
#include "qt/message_box.h"
#include "qt/printing.h"
#include "qt/swatch.h"
#include "qt/text.h"

namespace tessaplot::qt {

namespace {

/// What a further dialog is to stand above: the dialog that is open, or else the window.
QWidget* front(QWidget& window) {
    QWidget* dialog = QApplication::activeModalWidget();
    return dialog != nullptr ? dialog : &window;
}

std::optional<base::PackedColor> chooseColor(QWidget* parent, base::PackedColor present) {
    const QColor chosen = QColorDialog::getColor(colorOf(present), parent);
    if (!chosen.isValid()) return std::nullopt;
    return base::packColor(chosen.red(), chosen.green(), chosen.blue());
}

std::optional<platform::FontChoice> chooseFont(QWidget* parent, const platform::FontChoice& present) {
    QFont font(QString::fromStdString(present.name));
    if (present.size > 0) font.setPointSizeF(present.size);
    font.setBold(present.bold);
    font.setItalic(present.italic);
    font.setUnderline(present.underline);
    font.setStrikeOut(present.strikeout);
    bool chosen = false;
    font = QFontDialog::getFont(&chosen, font, parent);
    if (!chosen) return std::nullopt;
    return platform::FontChoice{
        font.family().toStdString(), font.pointSizeF(), font.bold(), font.italic(), font.underline(), font.strikeOut()};
}

/// Few desktops have a program for Markdown, and some have no browser: pages of the help are shown here then.
void openPage(QWidget* parent, std::string_view target) {
    const QString address = qString(target);
    const bool isFile = QFileInfo(address).isFile();
    if (isFile && address.endsWith(".md")) return HelpWindow::open(parent, address);
    if (QDesktopServices::openUrl(QUrl::fromUserInput(address, {}, QUrl::AssumeLocalFile))) return;
    if (isFile && address.endsWith(".html")) return HelpWindow::open(parent, address);
    throw base::Failure(base::FailureCode::FileUnreadable,
                        "There is no program here that shows \"" + std::string(target) + "\".");
}

}  // namespace

platform::Desktop makeDesktop(MainWindow& window) {
    platform::Desktop desktop;
    desktop.ask = [&window](const platform::Message& message) { return showMessage(front(window), message); };
    // Copies of the desktop share the folder chosen last.
    desktop.chooseFile = [&window, chooser = std::make_shared<FileChooser>()](const platform::FileQuestion& question) {
        return chooser->choose(front(window), question);
    };
    desktop.showStatus = [&window](std::string_view text) { window.showStatus(text); };
    desktop.display = [&window] { window.displayPicture(); };
    desktop.closeWindow = [&window] { window.close(); };
    desktop.reportProgress = [&window](double share) { return window.reportProgress(share); };
    desktop.registerFileType = registerFileType;
    desktop.loadPicture = pictures::readPicture;
    desktop.chooseColor = [&window](base::PackedColor present) { return chooseColor(front(window), present); };
    desktop.chooseFont = [&window](const platform::FontChoice& present) { return chooseFont(front(window), present); };
    desktop.setClipboardText = setClipboardText;
    desktop.clipboardText = clipboardText;
    desktop.copyPictureFile = copyPictureFile;
    desktop.printPictureFile = [&window](const std::filesystem::path& path) { printPictureFile(&window, path); };
    desktop.openPage = [&window](std::string_view target) { openPage(&window, target); };
    // What the user does meanwhile waits until the command is done with.
    desktop.doEvents = [] { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); };
    desktop.readFrame = [&window](int width, int height) { return window.readFrame(width, height); };
    desktop.popUpMenu = [&window](std::string_view name) { window.popUpMenu(name); };
    return desktop;
}

}  // namespace tessaplot::qt

#include "qt/desktop.h"

#include <QApplication>
#include <QColorDialog>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QMessageBox>
#include <QUrl>
#include <memory>

#include "pictures/picture_reader.h"
#include "qt/clipboard.h"
#include "qt/file_type.h"
#include "qt/help_window.h"
#include "qt/main_window.h"
#include "qt/printing.h"
#include "qt/text.h"

namespace tessaplot::qt {

namespace {

using platform::Answer;
using platform::Buttons;
using platform::Icon;

/// What a further dialog is to stand above: the dialog that is open, or else the window.
QWidget* front(QWidget& window) {
    QWidget* dialog = QApplication::activeModalWidget();
    return dialog != nullptr ? dialog : &window;
}

QMessageBox::Icon iconOf(Icon icon) {
    switch (icon) {
        case Icon::Warning:
            return QMessageBox::Warning;
        case Icon::Error:
            return QMessageBox::Critical;
        default:
            return QMessageBox::NoIcon;
    }
}

QMessageBox::StandardButtons buttonsOf(Buttons buttons) {
    switch (buttons) {
        case Buttons::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case Buttons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        default:
            return QMessageBox::Ok;
    }
}

Answer ask(QWidget* parent, const platform::Message& message) {
    QMessageBox box(iconOf(message.icon), QString::fromStdString(message.title), {}, buttonsOf(message.buttons),
                    parent);
    box.setObjectName("MessageBox");
    box.setTextFormat(Qt::PlainText);
    box.setText(QString::fromStdString(message.text));
    switch (box.exec()) {
        case QMessageBox::Ok:
            return Answer::Ok;
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        default:
            return Answer::Cancel;
    }
}

/// The entries of a filter "description|pattern|..." in Qt's form "description (patterns)".
struct Filters {
    QStringList names;
    QStringList suffixes;

    explicit Filters(const std::string& filter) {
        const QStringList parts = QString::fromStdString(filter).split('|');
        for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
            const QString patterns = QString(parts[i + 1]).replace(';', ' ');
            const bool describesItself = parts[i] == patterns || parts[i] == '(' + patterns + ')';
            names << (describesItself ? '(' + patterns + ')' : parts[i] + " (" + patterns + ')');
            const QString suffix = QFileInfo(patterns.section(' ', 0, 0)).suffix();
            suffixes << (suffix.contains('*') ? QString() : suffix);
        }
    }
};

/// The file dialogs; each opens in the folder of the file chosen last.
class FileChooser {
 public:
    explicit FileChooser(QWidget& window) : window_(window) {}

    std::optional<platform::FileChoice> choose(const platform::FileQuestion& question) {
        const bool saves = question.mode == platform::FileQuestion::Mode::Save;
        const Filters filters(question.filter);
        QFileDialog dialog(front(window_), QString::fromStdString(question.title), folder_);
        dialog.setObjectName("FileDialog");
        dialog.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
        dialog.setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
        dialog.setNameFilters(filters.names);
        const auto setSuffix = [&](const QString& name) {
            const qsizetype entry = filters.names.indexOf(name);
            if (saves && entry >= 0) dialog.setDefaultSuffix(filters.suffixes[entry]);
        };
        QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, setSuffix);
        setSuffix(dialog.selectedNameFilter());

        if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
        folder_ = dialog.directory().absolutePath();
        const QByteArray path = QFile::encodeName(dialog.selectedFiles().constFirst());
        const qsizetype entry = std::max<qsizetype>(0, filters.names.indexOf(dialog.selectedNameFilter()));
        return platform::FileChoice{path.toStdString(), static_cast<int>(entry) + 1};
    }

 private:
    QWidget& window_;
    QString folder_ = QDir::currentPath();
};

std::optional<base::PackedColor> chooseColor(QWidget* parent, base::PackedColor present) {
    const QColor chosen =
        QColorDialog::getColor(QColor(base::RedOf(present), base::GreenOf(present), base::BlueOf(present)), parent);
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
    desktop.ask = [&window](const platform::Message& message) { return ask(front(window), message); };
    desktop.chooseFile = [chooser = std::make_shared<FileChooser>(window)](const platform::FileQuestion& question) {
        return chooser->choose(question);
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

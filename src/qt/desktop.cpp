#include "qt/desktop.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <memory>

#include "pictures/picture_reader.h"
#include "qt/main_window.h"

namespace tessaplot::qt {

namespace {

using platform::Answer;
using platform::Buttons;
using platform::Icon;

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
    explicit FileChooser(QWidget* parent) : parent_(parent) {}

    std::optional<platform::FileChoice> choose(const platform::FileQuestion& question) {
        const bool saves = question.mode == platform::FileQuestion::Mode::Save;
        const Filters filters(question.filter);
        QFileDialog dialog(parent_, QString::fromStdString(question.title), folder_);
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
    QWidget* parent_;
    QString folder_ = QDir::currentPath();
};

}  // namespace

platform::Desktop makeDesktop(MainWindow& window) {
    platform::Desktop desktop;
    desktop.ask = [&window](const platform::Message& message) { return ask(&window, message); };
    desktop.chooseFile = [chooser = std::make_shared<FileChooser>(&window)](const platform::FileQuestion& question) {
        return chooser->choose(question);
    };
    desktop.showStatus = [&window](std::string_view text) { window.showStatus(text); };
    desktop.display = [&window] { window.displayPicture(); };
    desktop.closeWindow = [&window] { window.close(); };
    desktop.reportProgress = [&window](double share) { return window.reportProgress(share); };
    desktop.loadPicture = pictures::readPicture;
    return desktop;
}

}  // namespace tessaplot::qt

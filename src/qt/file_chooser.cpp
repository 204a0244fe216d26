#include "qt/file_chooser.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QStringList>
#include <algorithm>
#include <string>

namespace tessaplot::qt {

namespace {

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

}  // namespace

std::optional<platform::FileChoice> FileChooser::choose(QWidget* parent, const platform::FileQuestion& question) {
    const bool saves = question.mode == platform::FileQuestion::Mode::Save;
    const Filters filters(question.filter);
    QFileDialog dialog(parent, QString::fromStdString(question.title), folder_);
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

}  // namespace tessaplot::qt

#include "qt/file_type.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSaveFile>
#include <QStandardPaths>

namespace tessaplot::qt {

namespace {

bool isInstalled(const QString& path) {
    return !QStandardPaths::locate(QStandardPaths::GenericDataLocation, path).isEmpty();
}

QByteArray content(const QString& resource) {
    QFile file(":/tessaplot/packaging/" + resource);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The installed entry finds the program by its name; here it may stand anywhere.
QByteArray menuEntry() {
    QByteArray program = QCoreApplication::applicationFilePath().toUtf8();
    QByteArray entry = content("tessaplot.desktop");
    entry.replace("TryExec=tessaplot", "TryExec=" + program);
    program.replace('%', "%%");
    entry.replace("\nExec=tessaplot", "\nExec=\"" + program + '"');
    return entry;
}

/// Writes what is missing below the user's data folder; true if it was.
bool provide(const QString& path, const QByteArray& bytes) {
    if (isInstalled(path)) return false;
    const QFileInfo target(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + '/' + path);
    QSaveFile file(target.filePath());
    return QDir().mkpath(target.path()) && file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() &&
           file.commit();
}

/// Lets the desktop take notice, where it has such a tool.
void refresh(const QString& tool, const QString& folder) {
    const QString program = QStandardPaths::findExecutable(tool);
    if (program.isEmpty()) return;
    QProcess process;
    process.setProgram(program);
    process.setArguments({QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + '/' + folder});
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.startDetached();
}

}  // namespace

void registerFileType() {
    provide("icons/hicolor/scalable/apps/tessaplot.svg", content("tessaplot.svg"));
    if (provide("mime/packages/tessaplot.xml", content("tessaplot-mime.xml"))) refresh("update-mime-database", "mime");
    if (provide("applications/tessaplot.desktop", menuEntry())) refresh("update-desktop-database", "applications");
}

}  // namespace tessaplot::qt

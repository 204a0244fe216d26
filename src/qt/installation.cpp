#include "qt/installation.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QStringList>

namespace tessaplot::qt {

namespace {

QString firstExisting(const QStringList& candidates) {
    for (const QString& candidate : candidates)
        if (QFileInfo::exists(candidate)) return candidate;
    return {};
}

QString beside(const QString& path) {
    return QCoreApplication::applicationDirPath() + "/../" + path;
}

QString source(const QString& path) {
    return QString(TESSAPLOT_SOURCE_FOLDER) + '/' + path;
}

QString elsewhere(const QString& path) {
    return QStandardPaths::locate(QStandardPaths::GenericDataLocation, path, QStandardPaths::LocateDirectory);
}

ui::HelpTargets readHelp() {
    const QSettings settings(beside(TESSAPLOT_DATA_FOLDER "/tessaplot/help.ini"), QSettings::IniFormat);
    const auto address = [&](const char* key) { return settings.value(key).toString().toStdString(); };
    ui::HelpTargets help{address("Contents"),       address("HomePage"),      address("CustomerSupport"),
                         address("VideoTutorials"), address("CommunityNews"), address("CommunityForum")};
    if (help.contents.empty())
        help.contents =
            firstExisting({beside(TESSAPLOT_GUIDE_FOLDER "/index.html"), beside(TESSAPLOT_GUIDE_FOLDER "/index.md"),
                           beside("../guide/index.html"), source("docs/guide/index.md")})
                .toStdString();
    return help;
}

}  // namespace

Installation findInstallation() {
    const QString samples = firstExisting(
        {beside(TESSAPLOT_DATA_FOLDER "/tessaplot/samples"), elsewhere("tessaplot/samples"), source("samples")});
    return {QFile::encodeName(samples).toStdString(), readHelp()};
}

}  // namespace tessaplot::qt

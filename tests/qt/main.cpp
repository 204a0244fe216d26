#include <QClipboard>
#include <QSocketNotifier>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <cstdio>
#include <string_view>

#include <gtest/gtest.h>
#include <unistd.h>

#include "qt/application.h"
#include "qt/opengl_format.h"

namespace {

/// Another program of the display: it owns the clipboard until its input ends.
int holdClipboard(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    QGuiApplication::clipboard()->setText(argv[2]);
    QSocketNotifier ended(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&ended, &QSocketNotifier::activated, &application, &QCoreApplication::quit);
    std::puts("held");
    std::fflush(stdout);
    return QGuiApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 3 && std::string_view(argv[1]) == "--hold-clipboard") return holdClipboard(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();
#ifndef TESSAPLOT_TEST_DISPLAY
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("DISPLAY");
#endif
    const QTemporaryDir settings;  // Qt's file dialogs remember where they were.
    qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
    qputenv("HOME", settings.path().toUtf8());
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    tessaplot::qt::requestOpenGl();
    tessaplot::qt::Application application(argc, argv);
    return RUN_ALL_TESTS();
}

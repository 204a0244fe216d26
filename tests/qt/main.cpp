#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "qt/application.h"
#include "qt/opengl_format.h"

int main(int argc, char** argv) {
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

#include "qt/file_type.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessaplot::qt {
namespace {

class FileTypeTest : public testing::Test {
 protected:
    void SetUp() override {
        QStandardPaths::setTestModeEnabled(false);
        qputenv("XDG_DATA_HOME", home.path().toUtf8());
        qputenv("XDG_DATA_DIRS", system.path().toUtf8());
    }
    void TearDown() override {
        qunsetenv("XDG_DATA_HOME");
        qunsetenv("XDG_DATA_DIRS");
        QStandardPaths::setTestModeEnabled(true);
    }

    std::string content(const char* path) const {
        QFile file(home.filePath(path));
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "";
    }

    static void put(const QString& path, const char* text) {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    QTemporaryDir home;
    QTemporaryDir system;
};

constexpr const char* entry = "applications/tessaplot.desktop";
constexpr const char* mimeType = "mime/packages/tessaplot.xml";
constexpr const char* icon = "icons/hicolor/scalable/apps/tessaplot.svg";

TEST_F(FileTypeTest, isWrittenForTheUserWhereItIsMissing) {
    put(system.filePath(icon), "an icon");
    registerFileType();
    const std::string program = QCoreApplication::applicationFilePath().toStdString();
    EXPECT_THAT(content(entry), testing::HasSubstr("\nExec=\"" + program + "\" %f\n"));
    EXPECT_THAT(content(entry), testing::HasSubstr("MimeType=application/x-tessaplot;"));
    EXPECT_THAT(content(mimeType), testing::HasSubstr("*.tsp"));
    EXPECT_EQ(content(icon), "") << "the system has it";

    put(home.filePath(entry), "changed by the user");
    registerFileType();
    EXPECT_EQ(content(entry), "changed by the user");
}

TEST_F(FileTypeTest, neverFails) {
    put(home.filePath("applications"), "a file where a folder should be");
    registerFileType();
    EXPECT_EQ(content(entry), "");
    EXPECT_NE(content(mimeType), "");
}

}  // namespace
}  // namespace tessaplot::qt

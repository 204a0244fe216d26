#include "qt/file_type.h"

#include <QCoreApplication>
#include <QStandardPaths>
#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/files.h"

namespace tessaplot::qt {
namespace {

class FileTypeTest : public testing::Test {
 protected:
    void SetUp() override {
        QStandardPaths::setTestModeEnabled(false);
        qputenv("XDG_DATA_HOME", (home / "").c_str());
        qputenv("XDG_DATA_DIRS", (system / "").c_str());
    }
    void TearDown() override {
        qunsetenv("XDG_DATA_HOME");
        qunsetenv("XDG_DATA_DIRS");
        QStandardPaths::setTestModeEnabled(true);
    }

    std::string content(const char* path) const { return bytesOf(home / path); }

    TemporaryFolder home;
    TemporaryFolder system;
};

constexpr const char* entry = "applications/tessaplot.desktop";
constexpr const char* mimeType = "mime/packages/tessaplot.xml";
constexpr const char* icon = "icons/hicolor/scalable/apps/tessaplot.svg";

TEST_F(FileTypeTest, isWrittenForTheUserWhereItIsMissing) {
    std::filesystem::create_directories((system / icon).parent_path());
    put(system / icon, "an icon");
    registerFileType();
    const std::string program = QCoreApplication::applicationFilePath().toStdString();
    EXPECT_THAT(content(entry), testing::HasSubstr("\nExec=\"" + program + "\" %f\n"));
    EXPECT_THAT(content(entry), testing::HasSubstr("MimeType=application/x-tessaplot;"));
    EXPECT_THAT(content(mimeType), testing::HasSubstr("*.tsp"));
    EXPECT_EQ(content(icon), "") << "the system has it";

    put(home / entry, "changed by the user");
    registerFileType();
    EXPECT_EQ(content(entry), "changed by the user");
}

TEST_F(FileTypeTest, neverFails) {
    put(home / "applications", "a file where a folder should be");
    registerFileType();
    EXPECT_EQ(content(entry), "");
    EXPECT_NE(content(mimeType), "");
}

}  // namespace
}  // namespace tessaplot::qt

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>
#include <sys/resource.h>

#include "base/failure.h"
#include "core/document.h"
#include "core/text_encoding.h"

namespace tessaplot::core {
namespace {

namespace fs = std::filesystem;

class DocumentFile : public testing::Test {
 protected:
    void SetUp() override {
        folder_ = fs::path(testing::TempDir()) /
                  ("tessaplot-" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
        fs::create_directories(folder_);
    }
    void TearDown() override { fs::remove_all(folder_); }

    static std::string bytesOf(const fs::path& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    void put(const fs::path& path, const std::string& bytes) { std::ofstream(path, std::ios::binary) << bytes; }

    fs::path folder_;
};

TEST_F(DocumentFile, holdsTypeLengthAndTextAndKeepsTheTailOfALongerFile) {
    const fs::path path = folder_ / "a b.tsp";
    writeDocumentFile(path, "D41 0 first text");
    EXPECT_EQ(bytesOf(path), std::string("\x08\0\x10\0", 4) + "D41 0 first text");
    writeDocumentFile(path, "D41");
    EXPECT_EQ(bytesOf(path), std::string("\x08\0\x03\0", 4) + "D41 0 first text");
    EXPECT_EQ(readDocumentFile(path), "D41");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_), {}), 1) << "nothing stays beside the document";
}

TEST_F(DocumentFile, roundTripsLengthsAroundTheShortHeader) {
    for (const std::size_t length : {65533U, 65534U, 65535U, 65536U, 200000U}) {
        const std::string text(length, 'x');
        writeDocumentFile(folder_ / "long.tsp", text);
        EXPECT_EQ(readDocumentFile(folder_ / "long.tsp"), text) << length;
    }
}

TEST_F(DocumentFile, refusesWhatIsNoDocumentAndReadsWhatACutOneHolds) {
    const fs::path path = folder_ / "x.tsp";
    EXPECT_THROW(readDocumentFile(path), base::Failure);
    EXPECT_THROW(readDocumentFile(folder_), base::Failure);
    put(path, "");
    EXPECT_EQ(readDocumentFile(path), "");
    put(path, "\x08");
    EXPECT_THROW(readDocumentFile(path), base::Failure);
    put(path, "%PDF-1.4 not ours");
    EXPECT_THROW(readDocumentFile(path), base::Failure);
    put(path, std::string("\x08\0\xff\x7f", 4) + "D41 5");
    EXPECT_EQ(readDocumentFile(path), "D41 5");
    put(path, std::string("\x08\0\xff\xff\xff\xff\xff\xff", 8) + "D41 6");
    EXPECT_EQ(readDocumentFile(path), "D41 6");
}

TEST_F(DocumentFile, aFailedSaveLeavesTheOldFileWhole) {
    const fs::path path = folder_ / "kept.tsp";
    writeDocumentFile(path, "the old text");
    const std::string before = bytesOf(path);
    const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    rlimit small = limit;
    small.rlim_cur = 1000;
    setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_THROW(writeDocumentFile(path, std::string(100000, 'y')), base::Failure);
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, oldHandler);
    EXPECT_EQ(bytesOf(path), before);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_), {}), 1);
    EXPECT_THROW(writeDocumentFile(folder_ / "no" / "folder.tsp", "x"), base::Failure);
    EXPECT_THROW(writeDocumentFile(folder_, "x"), base::Failure);
}

TEST_F(DocumentFile, writesThroughALinkAndKeepsPermissions) {
    writeDocumentFile(folder_ / "real.tsp", "one");
    fs::permissions(folder_ / "real.tsp", fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink(folder_ / "real.tsp", folder_ / "link.tsp");
    writeDocumentFile(folder_ / "link.tsp", "two");
    EXPECT_TRUE(fs::is_symlink(folder_ / "link.tsp"));
    EXPECT_EQ(readDocumentFile(folder_ / "real.tsp"), "two");
    EXPECT_EQ(fs::status(folder_ / "real.tsp").permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST(TextEncoding, keepsEveryCharacterInOneByteWherePossible) {
    const std::string western = "Grö\u00dfe \u20ac \u2019";
    EXPECT_EQ(toFileBytes(western),
              "Gr\xf6\xdf"
              "e \x80 \x92");
    for (const std::string& text :
         {western, std::string("plain"), std::string("\u03b1 and \u4e2d"), std::string("\u00c3\u00a4")})
        EXPECT_EQ(fromFileBytes(toFileBytes(text)), text);
    std::string all;
    for (int byte = 1; byte < 256; ++byte)
        all += static_cast<char>(byte);
    EXPECT_EQ(toFileBytes(fromFileBytes(all)), all);
}

}  // namespace
}  // namespace tessaplot::core

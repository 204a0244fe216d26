#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "base/failure.h"
#include "base/files.h"
#include "core/document.h"
#include "core/text_encoding.h"

namespace tessaplot::core {
namespace {

namespace fs = std::filesystem;

class DocumentFile : public testing::Test {
 protected:
    TemporaryFolder folder;
    fs::path path = folder / "a b.tsp";
};

TEST_F(DocumentFile, holdsTypeLengthAndTextAndKeepsTheTailOfALongerFile) {
    writeDocumentFile(path, "D41 0 first text");
    EXPECT_EQ(bytesOf(path), std::string("\x08\0\x10\0", 4) + "D41 0 first text");
    writeDocumentFile(path, "D41");
    EXPECT_EQ(bytesOf(path), std::string("\x08\0\x03\0", 4) + "D41 0 first text");
    EXPECT_EQ(readDocumentFile(path), "D41");
    for (const std::size_t length : {65533U, 65534U, 65535U, 65536U, 200000U}) {
        const std::string text(length, 'x');
        writeDocumentFile(path, text);
        EXPECT_EQ(readDocumentFile(path), text) << length;
    }
}

TEST_F(DocumentFile, refusesWhatIsNoDocumentAndReadsWhatACutOneHolds) {
    for (const fs::path& unreadable :
         {folder / "missing.tsp", fs::path(folder), put(folder / "1", "\x08"), put(folder / "2", "%PDF-1.4 not ours")})
        EXPECT_THROW(readDocumentFile(unreadable), base::Failure) << unreadable;
    EXPECT_EQ(readDocumentFile(put(path, "")), "");
    EXPECT_EQ(readDocumentFile(put(path, std::string("\x08\0\xff\x7f", 4) + "D41 5")), "D41 5");
    EXPECT_EQ(readDocumentFile(put(path, std::string("\x08\0\xff\xff\xff\xff\xff\xff", 8) + "D41 6")), "D41 6");
    EXPECT_THROW(writeDocumentFile(folder / "no" / "folder.tsp", "x"), base::Failure);
    EXPECT_THROW(writeDocumentFile(folder, "x"), base::Failure);
}

TEST_F(DocumentFile, writesThroughALinkAndKeepsPermissions) {
    constexpr fs::perms own = fs::perms::owner_read | fs::perms::owner_write;
    writeDocumentFile(path, "one");
    fs::permissions(path, own);
    fs::create_symlink(path, folder / "link.tsp");
    writeDocumentFile(folder / "link.tsp", "two");
    EXPECT_TRUE(fs::is_symlink(folder / "link.tsp"));
    EXPECT_EQ(readDocumentFile(path), "two");
    EXPECT_EQ(fs::status(path).permissions(), own);
}

TEST(TextEncoding, keepsEveryCharacterInOneByteWherePossible) {
    const std::string western = "Grö\u00dfe \u20ac \u2019";
    EXPECT_EQ(toFileBytes(western),
              "Gr\xf6\xdf"
              "e \x80 \x92");
    for (const std::string& text : {western, std::string("\u03b1 and \u4e2d"), std::string("\u00c3\u00a4")})
        EXPECT_EQ(fromFileBytes(toFileBytes(text)), text);
    std::string all;
    for (int byte = 1; byte < 256; ++byte)
        all += static_cast<char>(byte);
    EXPECT_EQ(toFileBytes(fromFileBytes(all)), all);
}

}  // namespace
}  // namespace tessaplot::core

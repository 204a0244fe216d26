#include "pictures/picture_file.h"

#include <QImage>
#include <filesystem>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/failure.h"
#include "base/files.h"
#include "pictures/picture_reader.h"

namespace tessaplot::pictures {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;
using testing::HasSubstr;

constexpr int width = 5;
constexpr int height = 3;
constexpr const char* noPicture = "holds no BMP, JPG or GIF";

QImage imageAt(const fs::path& path) {
    return QImage(QString::fromStdString(path.string()));
}

class PictureFile : public testing::Test {
 protected:
    /// A picture whose pixel (x, y) tells its place; an odd width shows rows that are padded by mistake.
    static std::vector<std::uint8_t> bytesOfPicture(int channels) {
        std::vector<std::uint8_t> bytes;
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                for (int channel = 0; channel < channels; ++channel)
                    bytes.push_back(static_cast<std::uint8_t>(channel == 0 ? 40 * x : channel == 1 ? 80 * y : 200));
        return bytes;
    }
    std::string writeFault(const std::string& name, const Pixels& pixels) const {
        try {
            writePicture(folder / name, pixels);
        } catch (const base::Failure& failure) {
            return failure.what();
        }
        return {};
    }
    static std::string readFault(const fs::path& path) {
        try {
            readPicture(path);
        } catch (const base::Failure& failure) {
            EXPECT_EQ(failure.code(), base::FailureCode::FileUnreadable);
            return failure.what();
        }
        return {};
    }

    TemporaryFolder folder;
    const std::vector<std::uint8_t> rgb = bytesOfPicture(3);
    const std::vector<std::uint8_t> grey = std::vector<std::uint8_t>(96 * 48 * 3, 90);
};

TEST_F(PictureFile, readsBackPixelByPixelInEveryLosslessFormat) {
    for (const int channels : {3, 4}) {
        const auto bytes = bytesOfPicture(channels);
        for (const char* name : {"a.png", "A.PNG", "a b.bmp"}) {
            writePicture(folder / name, {bytes, width, height, channels});
            const QImage image = imageAt(folder / name);
            ASSERT_EQ(image.size(), QSize(width, height)) << name;
            for (int y = 0; y < height; ++y)
                for (int x = 0; x < width; ++x)
                    EXPECT_EQ(image.pixelColor(x, y).rgb() & 0xffffff, qRgb(40 * x, 80 * y, 200) & 0xffffff) << name;
        }
        EXPECT_EQ(imageAt(folder / "a.png").pixelColor(0, 0).alpha(), channels == 4 ? 200 : 255);
    }
    const platform::Picture read = readPicture(folder / "a b.bmp");
    EXPECT_EQ(read.width, width);
    EXPECT_EQ(read.height, height);
    EXPECT_EQ(read.pixels, rgb) << "from the top down without padding";
}

TEST_F(PictureFile, jpegKeepsSizeAndNearbyColoursAndIsReadUnderAnyName) {
    writePicture(folder / "a.jpg", {grey, 96, 48, 3});
    ASSERT_EQ(imageAt(folder / "a.jpg").size(), QSize(96, 48));
    fs::rename(folder / "a.jpg", folder / "a.gif");
    const platform::Picture photo = readPicture(folder / "a.gif");
    ASSERT_EQ(photo.pixels.size(), grey.size());
    EXPECT_NEAR(photo.pixels[100], 90, 3);
}

TEST_F(PictureFile, writesAPlainBitmapOfTwentyFourBitsAndAPdfPageOfThePicturesSize) {
    writePicture(folder / "a.bmp", {rgb, width, height, 3});
    const std::string bitmap = bytesOf(folder / "a.bmp");
    ASSERT_EQ(bitmap.size(), 54U + 16 * height) << "rows of 15 bytes padded to 16";
    EXPECT_EQ(bitmap[2], static_cast<char>(bitmap.size()));
    EXPECT_EQ(bitmap[28], 24);
    EXPECT_EQ(bitmap.substr(54, 3), "\xC8\xA0\0"s) << "bottom row first; blue, green, red";

    writePicture(folder / "a.pdf", {grey, 96, 48, 3});
    const std::string page = bytesOf(folder / "a.pdf");
    EXPECT_THAT(page, testing::StartsWith("%PDF-1."));
    EXPECT_THAT(page, testing::AllOf(HasSubstr("/MediaBox [0 0 72"), HasSubstr("/Width 96")));
    EXPECT_THAT(page, testing::Not(HasSubstr("/DCTDecode"))) << "the picture is not made a JPEG";
}

TEST_F(PictureFile, aFailedWriteTellsWhyAndLeavesTheOldPictureAlone) {
    for (const char* name : {"a.xyz", "png"})
        EXPECT_THAT(writeFault(name, {rgb, width, height, 3}), HasSubstr(".png, .bmp"));
    for (const char* name : {"missing/a.png", "missing/a.pdf"})
        EXPECT_THAT(writeFault(name, {rgb, width, height, 3}), HasSubstr("cannot be written"));
    EXPECT_THAT(writeFault("a.png", {rgb, width, height + 1, 3}), HasSubstr("do not fill"));
    EXPECT_THAT(writeFault("a.png", {rgb, 0, 0, 3}), HasSubstr("do not fill"));
    EXPECT_TRUE(fs::is_empty(folder));
    writePicture(folder / "a.png", {rgb, width, height, 3});
    const std::string before = bytesOf(folder / "a.png");
    EXPECT_NE(writeFault("a.png", {rgb, width, 1, 3}), "");
    EXPECT_EQ(bytesOf(folder / "a.png"), before);
    fs::create_directory(folder / "b.png");
    EXPECT_THAT(writeFault("b.png", {rgb, width, height, 3}), HasSubstr("cannot be written"));
}

TEST_F(PictureFile, readsAGif) {
    // Two pixels of a palette of two colours.
    const std::string gif("GIF89a\2\0\1\0\x80\0\0\xff\x80\0\0\0\xff,\0\0\0\0\2\0\1\0\0\2\2\x44\x0a\0;", 36);
    const platform::Picture read = readPicture(put(folder / "a.gif", gif));
    EXPECT_EQ(read.width, 2);
    EXPECT_EQ(read.pixels, (std::vector<std::uint8_t>{255, 128, 0, 0, 0, 255}));
}

TEST_F(PictureFile, aFailedReadTellsWhyAFileIsNoPicture) {
    EXPECT_THAT(readFault(folder / "missing.bmp"), HasSubstr("missing.bmp"));
    EXPECT_THAT(readFault(put(folder / "empty.bmp", "")), HasSubstr(noPicture));
    EXPECT_THAT(readFault(put(folder / "text.jpg", "This is no picture at all.")), HasSubstr(noPicture));
    EXPECT_NE(readFault(folder), "");
    writePicture(folder / "whole.bmp", {grey, 96, 48, 3});
    EXPECT_NE(readFault(put(folder / "cut.bmp", bytesOf(folder / "whole.bmp").substr(0, 40))), "");
    writePicture(folder / "a.png", {grey, 96, 48, 3});
    EXPECT_THAT(readFault(folder / "a.png"), HasSubstr(noPicture));
}

}  // namespace
}  // namespace tessaplot::pictures

#include "pictures/picture_file.h"

#include <QImage>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/failure.h"

namespace tessaplot::pictures {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

constexpr int width = 5;
constexpr int height = 3;

class PictureFile : public testing::Test {
 protected:
    void SetUp() override {
        folder = fs::path(testing::TempDir()) /
                 ("pictures-" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
        fs::create_directories(folder);
    }
    void TearDown() override { fs::remove_all(folder); }

    /// A picture whose pixel (x, y) tells its place; an odd width shows rows that are padded by mistake.
    static std::vector<std::uint8_t> bytesOf(int channels) {
        std::vector<std::uint8_t> bytes;
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                for (int channel = 0; channel < channels; ++channel)
                    bytes.push_back(static_cast<std::uint8_t>(channel == 0 ? 40 * x : channel == 1 ? 80 * y : 200));
        return bytes;
    }

    static std::string contentOf(const fs::path& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::string faultOf(const fs::path& path, const Pixels& pixels) {
        try {
            writePicture(path, pixels);
        } catch (const base::Failure& failure) {
            return failure.what();
        }
        return {};
    }

    fs::path folder;
};

TEST_F(PictureFile, readsBackPixelByPixelInEveryLosslessFormat) {
    for (const int channels : {3, 4}) {
        const auto bytes = bytesOf(channels);
        for (const char* name : {"a.png", "A.PNG", "a b.bmp"}) {
            const fs::path path = folder / name;
            writePicture(path, {bytes, width, height, channels});
            const QImage image(QString::fromStdString(path.string()));
            ASSERT_EQ(image.size(), QSize(width, height)) << name;
            for (int y = 0; y < height; ++y)
                for (int x = 0; x < width; ++x) {
                    const QColor color = image.pixelColor(x, y);
                    EXPECT_EQ(color.red(), 40 * x) << name;
                    EXPECT_EQ(color.green(), 80 * y) << name;
                    EXPECT_EQ(color.blue(), 200) << name;
                }
        }
        const QColor transparent = QImage(QString::fromStdString((folder / "a.png").string())).pixelColor(0, 0);
        EXPECT_EQ(transparent.alpha(), channels == 4 ? 200 : 255);
    }
}

TEST_F(PictureFile, writesJpegOfTheSameSizeAndNearbyColours) {
    const std::vector<std::uint8_t> bytes(32 * 16 * 3, 90);
    writePicture(folder / "a.jpg", {bytes, 32, 16, 3});
    const QImage image(QString::fromStdString((folder / "a.jpg").string()));
    ASSERT_EQ(image.size(), QSize(32, 16));
    EXPECT_NEAR(image.pixelColor(7, 7).green(), 90, 3);
}

TEST_F(PictureFile, writesAPlainBitmapOfTwentyFourBitsAndAPdfPageOfThePicturesSize) {
    const auto bytes = bytesOf(3);
    writePicture(folder / "a.bmp", {bytes, width, height, 3});
    const std::string bitmap = contentOf(folder / "a.bmp");
    ASSERT_EQ(bitmap.size(), 54U + 16 * height) << "rows of 15 bytes padded to 16";
    EXPECT_EQ(bitmap[2], static_cast<char>(bitmap.size()));
    EXPECT_EQ(bitmap[28], 24);
    EXPECT_EQ(bitmap.substr(54, 3), "\xC8\xA0\0"s) << "bottom row first; blue, green, red";

    const std::vector<std::uint8_t> large(96 * 48 * 3, 90);
    writePicture(folder / "a.pdf", {large, 96, 48, 3});
    const std::string page = contentOf(folder / "a.pdf");
    EXPECT_THAT(page, testing::StartsWith("%PDF-1."));
    EXPECT_THAT(page, testing::HasSubstr("/MediaBox [0 0 72"));
    EXPECT_THAT(page, testing::HasSubstr("/Width 96"));
    EXPECT_THAT(page, testing::Not(testing::HasSubstr("/DCTDecode"))) << "the picture is not made a JPEG";
    EXPECT_THAT(faultOf(folder / "no" / "a.pdf", {large, 96, 48, 3}), testing::HasSubstr("cannot be written"));
}

TEST_F(PictureFile, tellsWhatIsWrongAndLeavesNoFile) {
    const auto bytes = bytesOf(3);
    const Pixels good{bytes, width, height, 3};
    EXPECT_THAT(faultOf(folder / "a.xyz", good), testing::HasSubstr(".png, .bmp"));
    EXPECT_THAT(faultOf(folder / "png", good), testing::HasSubstr(".png, .bmp"));
    EXPECT_THAT(faultOf(folder / "missing" / "a.png", good), testing::HasSubstr("cannot be written"));
    EXPECT_THAT(faultOf(folder / "a.png", {bytes, width, height + 1, 3}), testing::HasSubstr("do not fill"));
    EXPECT_THAT(faultOf(folder / "a.png", {bytes, 0, 0, 3}), testing::HasSubstr("do not fill"));
    EXPECT_TRUE(fs::is_empty(folder));
}

TEST_F(PictureFile, replacesAnOldPictureOnlyByAWholeOne) {
    const auto bytes = bytesOf(3);
    const fs::path path = folder / "a.png";
    writePicture(path, {bytes, width, height, 3});
    const auto size = fs::file_size(path);
    EXPECT_NE(faultOf(path, {bytes, width, 1, 3}), "");
    EXPECT_EQ(fs::file_size(path), size);
    fs::create_directory(folder / "b.png");
    EXPECT_THAT(faultOf(folder / "b.png", {bytes, width, height, 3}), testing::HasSubstr("cannot be written"));
}

}  // namespace
}  // namespace tessaplot::pictures

#include "pictures/picture_reader.h"

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/failure.h"
#include "pictures/picture_file.h"

namespace tessaplot::pictures {
namespace {

namespace fs = std::filesystem;

class PictureReader : public testing::Test {
 protected:
    void SetUp() override {
        folder = fs::path(testing::TempDir()) /
                 ("reader-" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
        fs::create_directories(folder);
    }
    void TearDown() override { fs::remove_all(folder); }

    fs::path put(const std::string& name, const std::string& bytes) const {
        std::ofstream(folder / name, std::ios::binary) << bytes;
        return folder / name;
    }
    static std::string faultOf(const fs::path& path) {
        try {
            readPicture(path);
        } catch (const base::Failure& failure) {
            EXPECT_EQ(failure.code(), base::FailureCode::FileUnreadable);
            return failure.what();
        }
        return {};
    }

    fs::path folder;
};

TEST_F(PictureReader, readsPixelsFromTheTopDownWithoutPadding) {
    const std::vector<std::uint8_t> pixels{255, 0, 0, 0, 255, 0, 0, 0, 255, 10, 20, 30, 40, 50, 60, 70, 80, 90};
    writePicture(folder / "a b.bmp", {pixels, 3, 2, 3});
    const platform::Picture read = readPicture(folder / "a b.bmp");
    EXPECT_EQ(read.width, 3);
    EXPECT_EQ(read.height, 2);
    EXPECT_EQ(read.pixels, pixels);
    const std::vector<std::uint8_t> grey(16 * 8 * 3, 120);
    writePicture(folder / "a.jpg", {grey, 16, 8, 3});
    fs::rename(folder / "a.jpg", folder / "a.gif");
    const platform::Picture photo = readPicture(folder / "a.gif");
    EXPECT_EQ(photo.pixels.size(), grey.size()) << "the content tells the format";
    EXPECT_NEAR(photo.pixels[100], 120, 3);
}

TEST_F(PictureReader, readsAGif) {
    // Two pixels of a palette of two colours.
    const std::string gif("GIF89a\2\0\1\0\x80\0\0\xff\x80\0\0\0\xff,\0\0\0\0\2\0\1\0\0\2\2\x44\x0a\0;", 36);
    const platform::Picture read = readPicture(put("a.gif", gif));
    EXPECT_EQ(read.width, 2);
    EXPECT_EQ(read.pixels, (std::vector<std::uint8_t>{255, 128, 0, 0, 0, 255}));
}

TEST_F(PictureReader, tellsWhyAFileIsNoPicture) {
    EXPECT_THAT(faultOf(folder / "missing.bmp"), testing::HasSubstr("missing.bmp"));
    EXPECT_THAT(faultOf(put("empty.bmp", "")), testing::HasSubstr("holds no BMP, JPG or GIF"));
    EXPECT_THAT(faultOf(put("text.jpg", "This is no picture at all.")), testing::HasSubstr("holds no BMP, JPG or GIF"));
    EXPECT_NE(faultOf(folder), "");
    const std::vector<std::uint8_t> pixels(64 * 64 * 3, 77);
    writePicture(folder / "whole.bmp", {pixels, 64, 64, 3});
    fs::resize_file(folder / "whole.bmp", 40);
    EXPECT_NE(faultOf(folder / "whole.bmp"), "");
    writePicture(folder / "a.png", {pixels, 64, 64, 3});
    EXPECT_THAT(faultOf(folder / "a.png"), testing::HasSubstr("holds no BMP, JPG or GIF"));
}

}  // namespace
}  // namespace tessaplot::pictures

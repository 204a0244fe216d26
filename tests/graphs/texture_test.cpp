#include "graphs/texture.h"

#include <filesystem>

#include <GL/glu.h>
#include <gmock/gmock.h>

#include "base/failure.h"
#include "base/file.h"
#include "gl/offscreen_context.h"
#include "graphs/image_scaling.h"
#include "small_scene.h"

namespace tessaplot::graphs {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using Bytes = std::vector<std::uint8_t>;

std::string littleEndian(std::uint32_t value) {
    std::string bytes;
    for (int k = 0; k < 4; ++k)
        bytes += static_cast<char>(value >> 8 * k & 255);
    return bytes;
}

Bytes randomBytes(std::size_t count) {
    std::mt19937 engine(static_cast<unsigned>(count));
    Bytes bytes(count);
    for (std::uint8_t& byte : bytes)
        byte = static_cast<std::uint8_t>(engine());
    return bytes;
}

class TextureTest : public testing::Test {
 protected:
    void SetUp() override {
        scene.folder = fs::path(testing::TempDir()) /
                       ("texture-" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
        fs::create_directories(scene.folder);
        scene.desktop.showStatus = [this](std::string_view text) { status = text; };
        scene.desktop.loadPicture = [this](const fs::path&) {
            ++loads;
            return picture;
        };
    }
    void TearDown() override { fs::remove_all(scene.folder); }

    fs::path put(const std::string& name, const std::string& bytes) const {
        base::writeFile(scene.folder / name, bytes);
        return scene.folder / name;
    }
    void putRaw(const std::string& name, int width, int height, const Bytes& pixels) const {
        put(name, littleEndian(static_cast<std::uint32_t>(width)) + littleEndian(static_cast<std::uint32_t>(height)) +
                      std::string(pixels.begin(), pixels.end()));
    }
    bool load(const std::string& name) {
        list = {};
        texture = {};
        return texture.LoadGLTextures(list, name, scene.context());
    }

    SmallScene scene;
    platform::Picture picture;
    int loads = 0;
    std::string status;
    gl::DisplayList list;
    Cls15 texture;
};

TEST_F(TextureTest, readsARawFileAsItStands) {
    const Bytes pixels = randomBytes(64 * 16 * 3);
    putRaw("a.mot", 64, 16, pixels);
    ASSERT_TRUE(load("a.mot")) << status;
    EXPECT_EQ(texture.TextureImg->pixels, pixels);
    EXPECT_EQ(gl::toText(list),
              "glTexImage2D 64 16 3\nglTexParameteri GL_TEXTURE_2D GL_TEXTURE_MIN_FILTER GL_LINEAR\n"
              "glTexParameteri GL_TEXTURE_2D GL_TEXTURE_MAG_FILTER GL_LINEAR\n");
    EXPECT_EQ(loads, 0);
}

TEST_F(TextureTest, refusesRawFilesThatLieAboutTheirSize) {
    const Bytes pixels = randomBytes(4 * 4 * 3);
    constexpr int huge = 2000000000;
    for (const auto& [width, height] :
         {std::pair{-1, 4}, {4, -1}, {-1, -1}, {0, 4}, {4, 0}, {huge, huge}, {huge, 1}, {1, huge}, {4, 5}, {17, 1}}) {
        putRaw("a.mot", width, height, pixels);
        EXPECT_FALSE(load("a.mot")) << width << " by " << height;
        EXPECT_THAT(status, HasSubstr("does not hold"));
        EXPECT_TRUE(list.empty());
    }
    put("a.mot", "1234567");
    EXPECT_FALSE(load("a.mot"));
    EXPECT_THAT(status, HasSubstr("too short"));
}

TEST_F(TextureTest, takesTheKindFromTheLastThreeLetters) {
    picture = {4, 4, randomBytes(48)};
    for (const char* name : {"a.bmp", "a.Jpg", "a.GIF", "agif"}) {
        put(name, "x");
        EXPECT_TRUE(load(name)) << name;
    }
    EXPECT_EQ(loads, 4);
    for (const char* name : {"a.png", "a.jpeg", "tx", "a.mot "}) {
        put(name, "x");
        EXPECT_FALSE(load(name)) << name;
        EXPECT_THAT(status, HasSubstr("no BMP, JPG, GIF or MOT"));
    }
    status.clear();
    EXPECT_FALSE(load(""));
    EXPECT_EQ(status, "");
    EXPECT_FALSE(load("nowhere.bmp"));
    EXPECT_THAT(status, HasSubstr("not there"));
    picture = {};
    put("b.gif", "");
    EXPECT_FALSE(load("b.gif"));
    scene.desktop.loadPicture = nullptr;
    EXPECT_FALSE(load("b.gif"));
}

TEST_F(TextureTest, turnsAPictureUpsideDownAndSlantsOneWhoseRowsArePadded) {
    Cls15 slanted;
    platform::Picture odd{5, 3, {}};
    for (std::uint8_t k = 0; k < 45; ++k)
        odd.pixels.push_back(static_cast<std::uint8_t>(k + 1));
    slanted.LoadBMP(odd);
    // The rows of the bitmap: blue, green, red from the lowest row up, 15 bytes and one of padding.
    Bytes bitmap;
    for (int y = 2; y >= 0; --y) {
        for (int x = 0; x < 5; ++x)
            for (int c = 2; c >= 0; --c)
                bitmap.push_back(odd.pixels[static_cast<std::size_t>((y * 5 + x) * 3 + c)]);
        bitmap.push_back(0);
    }
    Bytes expected(45, 0);
    for (std::size_t y = 0; y < 3; ++y)
        for (std::size_t x = 0; x < 5; ++x)
            for (std::size_t c = 0; c < 3; ++c)
                expected[(4 * y + x) * 3 + c] = bitmap[(4 * y + x) * 3 + 2 - c];
    EXPECT_EQ(slanted.Data, expected);
}

TEST_F(TextureTest, fitsSidesToPowersOfTwoUpTo256) {
    const std::pair<ImageSize, ImageSize> sizes[] = {
        {{300, 100}, {256, 128}}, {{64, 64}, {64, 64}}, {{1, 1000}, {1, 256}},  {{129, 3}, {256, 4}},
        {{2, 4}, {2, 4}},         {{8, 16}, {8, 16}},   {{32, 128}, {32, 128}}, {{256, 255}, {256, 256}}};
    for (const auto& [from, to] : sizes) {
        Cls15 image;
        image.Data = Bytes(static_cast<std::size_t>(from.width * from.height * 3), 99);
        image.ImgWidth = from.width;
        image.ImgHeight = from.height;
        image.ScaleImg();
        EXPECT_EQ(std::pair(image.ImgWidth, image.ImgHeight), std::pair(to.width, to.height));
        EXPECT_EQ(image.Data, Bytes(static_cast<std::size_t>(to.width * to.height * 3), 99));
    }
}

TEST_F(TextureTest, scalesAsGluDoes) {
    const gl::OffscreenContext context;
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    const std::pair<ImageSize, ImageSize> sizes[] = {{{300, 100}, {256, 128}},
                                                     {{37, 5}, {64, 8}},
                                                     {{512, 512}, {256, 256}},
                                                     {{1000, 3}, {256, 4}},
                                                     {{1, 1}, {4, 2}}};
    for (const auto& [from, to] : sizes) {
        const auto count = [](ImageSize size) { return static_cast<std::size_t>(size.width * size.height * 3); };
        const Bytes image = randomBytes(count(from));
        Bytes expected(count(to));
        ASSERT_EQ(gluScaleImage(GL_RGB, from.width, from.height, GL_UNSIGNED_BYTE, image.data(), to.width, to.height,
                                GL_UNSIGNED_BYTE, expected.data()),
                  0);
        const Bytes scaled = scaledImage(image, from, to, 3);
        ASSERT_EQ(scaled.size(), expected.size());
        EXPECT_TRUE(std::ranges::equal(scaled, expected, [](int a, int b) { return std::abs(a - b) <= 1; }))
            << from.width << " by " << from.height;
    }
}

TEST_F(TextureTest, isLoadedOnceUntilTheFileChanges) {
    picture = {4, 4, randomBytes(48)};
    put("a.bmp", "x");
    ASSERT_TRUE(load("a.bmp"));
    const TextureImagePtr held = texture.TextureImg;
    ASSERT_TRUE(load("a.bmp"));
    EXPECT_EQ(texture.TextureImg, held);
    EXPECT_EQ(loads, 1);
    put("a.bmp", "longer");
    ASSERT_TRUE(load("a.bmp"));
    EXPECT_EQ(loads, 2);
    fs::remove(scene.folder / "a.bmp");
    EXPECT_FALSE(load("a.bmp"));
}

TEST_F(TextureTest, isFoundBesideTheDocumentWhereverItWasNamed) {
    picture = {4, 4, randomBytes(48)};
    const fs::path path = put("a.bmp", "x");
    EXPECT_TRUE(load(path.string()));
    EXPECT_TRUE(load("C:\\pictures\\a.bmp"));
    EXPECT_TRUE(load("/nowhere/a.bmp"));
    scene.folder /= "elsewhere";
    EXPECT_FALSE(load("a.bmp"));
    scene.folder = path.parent_path();
}

TEST_F(TextureTest, thatCannotBeLoadedLeavesTexturesOffAndTheColoursToTheirRule) {
    scene.fillSurface(2, 2);
    Cls9 graph = graphOf(graph_type::surface, 1, 1);
    graph.Smoothness = 2;
    graph.ShowTex = true;
    graph.TexMode = 1;
    graph.TexName = "nowhere.jpg";
    const std::string without = scene.drawn(graph);
    EXPECT_THAT(without, testing::Not(HasSubstr("glEnable GL_TEXTURE_2D")));
    EXPECT_THAT(without, HasSubstr("glColor3d 1 1 1\n"));
    EXPECT_THAT(without, testing::EndsWith("glEnd\nglDisable GL_TEXTURE_2D\n"));
    putRaw("a.mot", 2, 2, randomBytes(12));
    graph.TexName = "a.mot";
    EXPECT_THAT(scene.drawn(graph), HasSubstr("GL_TEXTURE_MAG_FILTER GL_LINEAR\nglEnable GL_TEXTURE_2D\n"));
}

}  // namespace
}  // namespace tessaplot::graphs

#include <cstdint>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/save_bitmap.h"
#include "scripted_window.h"

namespace tessaplot::ui {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

class PictureCommands : public ScriptedWindow {
 protected:
    void SetUp() override {
        ScriptedWindow::SetUp();
        state.desktop.readFrame = [this](int width, int height) {
            frame.resize(static_cast<std::size_t>((3 * width + 3) / 4 * 4 * height));
            for (std::size_t i = 0; i < frame.size(); ++i)
                frame[i] = static_cast<std::uint8_t>(i % 251);
            asked.push_back("frame " + std::to_string(width) + " " + std::to_string(height));
            return frame;
        };
        chosen = folder / "picture.bmp";
    }
    std::vector<std::uint8_t> frame;
};

TEST_F(PictureCommands, aBitmapIsOneColumnWiderAndExchangesEveryThirdByte) {
    const std::string start = "BM\x0e\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0"s;
    const std::string end(16, '\0');
    const struct {
        int width;
        int height;
        std::string sizes;
        std::size_t imageSize;
    } shapes[] = {{99, 7, "\x64\0\0\0\x07\0\0\0\x01\0\x18\0\0\0\0\0\x34\x08\0\0"s, 300 * 7},
                  {100, 6, "\x65\0\0\0\x06\0\0\0\x01\0\x18\0\0\0\0\0\x20\x07\0\0"s, 304 * 6}};
    for (const auto& shape : shapes) {
        core::SaveBitmap(state.desktop, chosen, shape.width, shape.height);
        const std::string bytes = bytesOf(chosen);
        ASSERT_EQ(bytes.size(), 54 + shape.imageSize);
        EXPECT_EQ(bytes.substr(0, 54), start + shape.sizes + end);
        for (std::size_t i = 0; i < shape.imageSize; ++i) {
            const std::size_t from = i % 3 == 0 ? i + 2 : i % 3 == 2 ? i - 2 : i;
            ASSERT_EQ(static_cast<std::uint8_t>(bytes[54 + i]), frame[from]) << "byte " << i << " of " << shape.width;
        }
    }
    put(chosen, "old");
    EXPECT_THROW(core::SaveBitmap(state.desktop, chosen, 100, 100), base::Failure) << "30400 bytes are no triples";
    EXPECT_EQ(bytesOf(chosen), "old");
    for (const int bad : {0, -5, 2000000000})
        EXPECT_THROW(core::SaveBitmap(state.desktop, chosen, bad, bad), base::Failure);
}

TEST_F(PictureCommands, saveAsWritesADocumentOrThePicture) {
    window.resizePicture(99, 50);
    std::string order;
    state.desktop.doEvents = [&] { order += "events "; };
    chosenFilter = 2;
    window.run("mnuFileSaveAs");
    EXPECT_THAT(asked, testing::ElementsAre("Save As *.tsp|*.tsp|*.bmp|*.bmp", "frame 100 50"));
    EXPECT_EQ(order, "events ");
    EXPECT_EQ(displays, 1) << "the picture is drawn anew before the question";
    EXPECT_EQ(bytesOf(chosen).size(), 54U + 300 * 50);
    EXPECT_TRUE(window.SaveDone);
    chosenFilter = 1;
    chosen = folder / "document.tsp";
    window.run("mnuFileSaveAs");
    EXPECT_THAT(bytesOf(chosen), testing::HasSubstr("D41 0 "));

    chosenFilter = 2;
    chosen = folder / "missing" / "picture.bmp";
    window.run("mnuFileSaveAs");
    EXPECT_FALSE(window.SaveDone);
    EXPECT_THAT(status, testing::HasSubstr("cannot be written"));
    state.desktop.readFrame = nullptr;
    window.run("mnuFileSaveAs");
    EXPECT_EQ(status, "There is no picture to read.");
    chosen.clear();
    window.run("mnuFileSaveAs");
    EXPECT_FALSE(window.SaveDone);
}

TEST_F(PictureCommands, copyAndPrintHandOverAFileThatGoesAgain) {
    fs::path handed;
    std::size_t size = 0;
    const auto take = [&](const fs::path& path) {
        handed = path;
        size = fs::file_size(path);
        EXPECT_EQ(fs::status(path.parent_path()).permissions() & (fs::perms::group_all | fs::perms::others_all),
                  fs::perms::none);
    };
    state.desktop.copyPictureFile = take;
    state.desktop.printPictureFile = take;
    window.resizePicture(99, 50);
    window.run("mnuEditCopyAs");
    EXPECT_TRUE(handed.empty()) << "there is nothing to copy";
    window.run("mnuFilePrint");
    EXPECT_FALSE(handed.empty()) << "a page may be empty";
    addGraph();
    for (const char* command : {"mnuEditCopyAs", "mnuGraphCopyAs", "mnuFilePrint"}) {
        handed.clear();
        window.run(command);
        EXPECT_EQ(handed.filename(), "temp.bmp");
        EXPECT_EQ(size, 54U + 300 * 50);
        EXPECT_FALSE(fs::exists(handed.parent_path()));
    }
    state.desktop.printPictureFile = [&](const fs::path& path) {
        handed = path;
        throw base::Failure(base::FailureCode::BadInput, "no paper");
    };
    window.run("mnuFilePrint");
    EXPECT_EQ(asked.back(), "Tessaplot: no paper");
    EXPECT_FALSE(fs::exists(handed.parent_path()));
}

}  // namespace
}  // namespace tessaplot::ui

#include "scene/text.h"

#include <gtest/gtest.h>

namespace tessaplot::scene {
namespace {

TEST(Text, solidTextIsPlacedTurnedColouredAndCalled) {
    gl::DisplayList list;
    DrawText3D(list, FontList5, "Size", 1, 2, 3, {90, 0, 1, 0}, base::packColor(255, 51, 0));
    EXPECT_EQ(gl::toText(list),
              "glPushAttrib GL_POLYGON_BIT\nglPushMatrix\nglListBase " + std::to_string(FontList5 - 32) +
                  "\nglTranslatef 1 2 3\nglScalef 0.6 0.6 0.6\nglRotatef 90 0 1 0\nglColor3f 1 0.2 0\n"
                  "glCallLists 4 GL_BYTE \"Size\"\nglPopMatrix\nglPopAttrib\n");
    gl::DisplayList colourless;
    DrawText3D(colourless, FontList3, "", 0, 0, 0, {}, std::nullopt);
    EXPECT_EQ(gl::toText(colourless).find("glColor"), std::string::npos);
}

TEST(Text, bitmapTextWithoutCharactersSetsOnlyColourAndPosition) {
    const std::string start = "glColor3f 0 0.5 1\nglRasterPos3f 86 30 0\n";
    for (const auto& [text, calls] : {std::pair{"", std::string()},
                                      {"0.5", "glPushAttrib GL_LIST_BIT\nglListBase " + std::to_string(FontList15) +
                                                  "\nglCallLists 3 GL_UNSIGNED_BYTE \"0.5\"\nglPopAttrib\n"}}) {
        gl::DisplayList list;
        DrawBitmapText(list, FontList15, text, 86, 30, 0, 0, 0.5F, 1);
        EXPECT_EQ(gl::toText(list), start + calls);
    }
}

TEST(Text, aCharacterIsOneByteHoweverManyItTakesInUtf8) {
    const std::string text =
        "Gr\xc3\xb6\xc3\x9f"
        "e \xe2\x82\xac \xce\xb1 \xff";
    EXPECT_EQ(TextToBytes(text),
              "Gr\xf6\xdf"
              "e \x80 ? \xff");
    EXPECT_EQ(characterCount(text), 11U);
    EXPECT_EQ(TextToBytes(""), "");
}

}  // namespace
}  // namespace tessaplot::scene

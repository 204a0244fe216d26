#include <functional>

#include <gmock/gmock.h>

#include "gl/compiled_list.h"
#include "gl/glyph_lists.h"
#include "gl/glyph_store.h"
#include "picture_comparison.h"

namespace tessaplot::gl::test {
namespace {

constexpr int width = BothWays::width;
constexpr int height = BothWays::height;

void outlinedText(DisplayList& list, std::string_view text, float x, float y) {
    list.glPushAttrib(GL_POLYGON_BIT);
    list.glPushMatrix();
    list.glListBase(FontList3 - 32);
    list.glTranslatef(x, y, 0);
    list.glRotatef(20, 0, 0, 1);
    list.glCallLists(GL_BYTE, text);
    list.glPopMatrix();
    list.glPopAttrib();
}

void bitmapText(DisplayList& list, std::string_view text, float x, float y) {
    list.glRasterPos3f(x, y, 0);
    list.glPushAttrib(GL_LIST_BIT);
    list.glListBase(FontList15);
    list.glCallLists(GL_UNSIGNED_BYTE, text);
    list.glPopAttrib();
}

/// The picture of a list that a frame calls, which is compiled, and of the same operations in the frame itself, which
/// are not.
class Texts : public testing::Test {
 protected:
    Pixels called(const DisplayList& body) {
        const DisplayListPtr list = std::make_shared<DisplayList>(body);
        return draw([&](DisplayList& frame) { frame.glCallList(list); });
    }
    Pixels direct(const DisplayList& body) {
        return draw([&](DisplayList& frame) {
            body.forEach([&](const Operation& operation) { frame.append(body, operation); });
        });
    }
    Replay& replay() { return replay_; }

 private:
    Pixels draw(const std::function<void(DisplayList&)>& body) {
        DisplayList frame;
        placeCamera(frame);
        setLight(frame);
        frame.glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
        frame.glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        body(frame);
        replay_.draw(frame, width, height);
        return replay_.readPixels();
    }

    OffscreenContext context_;
    Replay replay_;
};

TEST_F(Texts, CompiledTextsLookLikeThoseDrawnGlyphByGlyph) {
    for (const bool lit : {true, false}) {
        for (const GLenum mode : {GL_FILL, GL_LINE, GL_POINT}) {
            DisplayList body;
            lit ? body.glEnable(GL_LIGHTING) : body.glDisable(GL_LIGHTING);
            body.glPolygonMode(GL_FRONT_AND_BACK, mode);
            body.glColor3f(0.8F, 0.3F, 0);
            outlinedText(body, "Hamburg @8\xe9%", -6, 2);
            body.glColor3f(0, 0.3F, 0.8F);
            outlinedText(body, "\x1f-12.5", -3, -2);
            outlinedText(body, "", 0, 0);
            bitmapText(body, "Bitmap \x80g", -5, -4);
            body.glBegin(GL_TRIANGLES);  // in the mode that the texts found, with the normal that they left
            body.glVertex3d(2, -4, 0);
            body.glVertex3d(4, -4, 0);
            body.glVertex3d(3, -2, 0);
            body.glEnd();
            const Difference difference = compare(direct(body), called(body));
            EXPECT_LT(difference.share, 0.002) << lit << mode;
            EXPECT_GT(difference.drawnShare, 0.015);
        }
    }
    EXPECT_EQ(replay().trouble(), "");
}

TEST_F(Texts, TheFarPartOfALongTextCostsNothingAndChangesNothing) {
    const auto pictureOf = [this](std::size_t length) {
        DisplayList body;
        body.glDisable(GL_LIGHTING);
        body.glColor3f(0, 0, 0);
        outlinedText(body, std::string(length, '8'), -7, -2);
        return called(body);
    };
    const Difference difference = compare(pictureOf(100), pictureOf(1000000));
    EXPECT_LT(difference.share, 0.002);
    EXPECT_GT(difference.drawnShare, 0.02);
}

TEST_F(Texts, BitmapsAreSharpAndStandOnTheirRasterPosition) {
    DisplayList body;
    body.glDisable(GL_LIGHTING);
    for (const GLenum matrix : {GL_MODELVIEW, GL_PROJECTION}) {
        body.glMatrixMode(matrix);
        body.glLoadIdentity();
    }
    body.glOrtho(0, width, 0, height, -1, 1);
    body.glColor3f(0, 0, 0);
    body.glMatrixMode(GL_MODELVIEW);
    bitmapText(body, "Eg", 20, 30);
    const Pixels picture = direct(body);
    GlyphStore glyphs;
    Pixels wanted(picture.size(), 255);
    int origin = 20;
    for (const char c : {'E', 'g'}) {
        const GlyphBitmap& glyph = *glyphs.bitmap(static_cast<unsigned char>(c));
        for (int row = 0; row < glyph.height; ++row) {
            for (int column = 0; column < glyph.width; ++column) {
                const int byte = glyph.rows[static_cast<std::size_t>(row * ((glyph.width + 7) / 8) + column / 8)];
                if ((byte << column % 8 & 128) == 0) continue;
                const int y = height - 1 - (30 + glyph.bottom + row);
                const auto at = static_cast<std::size_t>(3 * (y * width + origin + glyph.left + column));
                wanted[at] = wanted[at + 1] = wanted[at + 2] = 0;
            }
        }
        origin += glyph.advance;
    }
    EXPECT_EQ(picture, wanted);
}

TEST(CompileList, TextsOfAListAreOneBatchWithoutCallsBetween) {
    GlyphStore glyphs;
    DisplayList list;
    list.glDisable(GL_LIGHTING);
    for (int i = 0; i < 50; ++i) {
        list.glColor3f(0, 0, i % 2 == 0 ? 1 : 0.5F);
        outlinedText(list, "-1.5", 0, static_cast<float>(i));
    }
    const CompiledList compiled = compileList(list, &glyphs);
    ASSERT_THAT(compiled.batches, testing::SizeIs(1));
    EXPECT_EQ(compiled.batches[0].attributes, colorAttribute);
    EXPECT_EQ(toText(compiled.calls),
              "glDisable GL_LIGHTING\nglNormal3d 0 0 1\nglColor4f 0 0 0.5 1\nglListBase 2000\n");
}

TEST(CompileList, PushesThatSomethingNeedsAreKept) {
    GlyphStore glyphs;
    DisplayList list;
    list.glListBase(7);
    list.glPushAttrib(GL_LIST_BIT | GL_POLYGON_BIT);
    list.glListBase(FontList5 - 32);
    list.glPolygonMode(GL_FRONT, GL_LINE);
    list.glCallLists(GL_BYTE, "x");
    list.glPopAttrib();
    list.glCallLists(GL_BYTE, "y");
    const CompiledList compiled = compileList(list, &glyphs);
    EXPECT_THAT(compiled.batches, testing::SizeIs(1));
    EXPECT_THAT(toText(compiled.calls),
                testing::AllOf(testing::StartsWith("glListBase 7\nglPushAttrib GL_POLYGON_BIT | GL_LIST_BIT\n"
                                                   "glListBase 3000\nglPolygonMode GL_FRONT GL_LINE\n"),
                               testing::HasSubstr("glPopAttrib\nglTranslatef "),
                               testing::EndsWith(" 0 0\nglCallLists 1 GL_BYTE \"y\"\n")));
}

}  // namespace
}  // namespace tessaplot::gl::test

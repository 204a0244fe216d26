#include "scene/axis.h"

#include <array>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "base/failure.h"
#include "scene/text.h"

namespace tessaplot::scene {
namespace {

using Place = std::array<double, 3>;

/// A glBegin block: its kind, the colour in force and its vertices.
struct Block {
    GLenum kind = 0;
    Place color{};
    std::vector<Place> vertices;
};

/// A text with its place, its rotation and the font.
struct Text {
    std::string text;
    Place place{};
    std::vector<double> rotation;
    double listBase = 0;
};

/// What a frame draws, read back from its operations.
struct Drawn {
    std::vector<Block> blocks;
    std::vector<Text> texts;
    std::string operations;
};

Place placeOf(const gl::Operation& operation) {
    return {operation.numbers[0], operation.numbers[1], operation.numbers[2]};
}

Drawn read(const gl::DisplayList& list) {
    Drawn drawn;
    Place color{};
    Text text;
    list.forEach([&](const gl::Operation& operation) {
        const auto& n = operation.numbers;
        if (operation.op == gl::Op::Color3f) color = placeOf(operation);
        if (operation.op == gl::Op::Begin) drawn.blocks.push_back({static_cast<GLenum>(n[0]), color, {}});
        if (operation.op == gl::Op::Vertex3d) drawn.blocks.back().vertices.push_back(placeOf(operation));
        if (operation.op == gl::Op::ListBase) text.listBase = n[0];
        if (operation.op == gl::Op::Translatef) text.place = placeOf(operation);
        if (operation.op == gl::Op::Rotatef) text.rotation.assign(n.begin(), n.end());
        if (operation.op != gl::Op::CallListsText) return;
        text.text = list.text(operation.object);
        drawn.texts.push_back(text);
    });
    drawn.operations = gl::toText(list);
    return drawn;
}

/// A box from (1, 2, 3) to (11.08, 7.08, 5.08) round data that are scaled by 100, 10 and 1.
constexpr AxisScales scales{1, 10, 100};
constexpr SceneState centred{mode3D, 0.5, 0.25, 0.125};

Drawn draw(const Cls3& axis, int mode = mode3D) {
    gl::DisplayList list;
    SceneState scene = centred;
    scene.SceneMode = mode;
    axis.Draw(list, scene, scales, 2, 1, 11.08, 2, 7.08, 3, 5.08);
    return read(list);
}

TEST(Axis, gridLinesRunAlongTheAxisOfTheirName) {
    Cls3 axis;
    axis.LabelNumX = 1;
    axis.LabelNumY = 2;
    axis.LabelNumZ = 3;
    const Drawn drawn = draw(axis);
    ASSERT_EQ(drawn.blocks.size(), 8U);
    EXPECT_EQ(drawn.blocks.front().color, (Place{0, 0, 0}));
    EXPECT_EQ(drawn.blocks.front().vertices[0], (Place{0.5, 1.75, 2.875})) << "the edges meet where the minima do";
    EXPECT_EQ(drawn.blocks.front().vertices[4], (Place{0.5, 1.75, 2.875}));
    const std::array<Place, 2> corners{{{0.5, 1.75, 2.875}, {10.58, 6.83, 4.955}}};
    // The axes along the lines and across the panel, and how many lines, in the order of the panels: YZ at the box's
    // smallest z, XZ at its smallest x, XY at its smallest y.
    const std::size_t families[6][3] = {{0, 2, 4}, {1, 2, 3}, {2, 0, 4}, {1, 0, 2}, {2, 1, 3}, {0, 1, 2}};
    for (std::size_t f = 0; f < 6; ++f) {
        const auto& [along, panel, lines] = families[f];
        const std::vector<Place>& vertices = drawn.blocks[f + 1].vertices;
        ASSERT_EQ(vertices.size(), 2 * lines) << f;
        const std::size_t across = 3 - along - panel;
        const double step = (corners[1][across] - corners[0][across]) / static_cast<double>(lines - 1);
        for (std::size_t i = 0; i < vertices.size(); ++i) {
            EXPECT_EQ(vertices[i][panel], corners[0][panel]) << f;
            EXPECT_NEAR(vertices[i][along], corners[i % 2][along], 1e-12) << f;
            EXPECT_NEAR(vertices[i][across], corners[0][across] + static_cast<double>(i / 2) * step, 1e-12) << f;
        }
    }
    EXPECT_EQ(drawn.blocks.back().vertices.size(), 2U * (2 + 3 + 4)) << "a tick for each label";
}

TEST(Axis, onlyTheFamiliesAndPanelsThatAreShownAreDrawn) {
    Cls3 axis;
    axis.ShowYZYGrid = axis.ShowYZZGrid = axis.ShowXZZGrid = axis.ShowXYXGrid = axis.ShowXYYGrid = false;
    axis.XZGridColor = base::packColor(255, 0, 0);
    EXPECT_THAT(draw(axis).blocks, testing::ElementsAre(testing::Field(&Block::color, Place{0, 0, 0}),
                                                        testing::Field(&Block::color, Place{1, 0, 0}),
                                                        testing::Field(&Block::color, Place{0, 0, 0})));
    EXPECT_EQ(draw(axis).operations.find("glMaterialfv"), std::string::npos);
    axis.ShowXZPanel = true;
    axis.XZPanelMaterial = 5;
    axis.XZPanelColor = base::packColor(0, 255, 0);
    const Drawn drawn = draw(axis);
    ASSERT_EQ(drawn.blocks.size(), 4U);
    EXPECT_EQ(drawn.blocks[0].kind, unsigned{GL_QUADS});
    EXPECT_EQ(drawn.blocks[0].color, (Place{0, 1, 0}));
    for (const Place& corner : drawn.blocks[0].vertices)
        EXPECT_EQ(corner[0], 0.5);
    EXPECT_THAT(drawn.operations, testing::HasSubstr("glColorMaterial GL_FRONT_AND_BACK GL_EMISSION\nglMaterialfv"));
    EXPECT_LT(drawn.operations.find("glNormal3d 1 0 0"), drawn.operations.find("glDisable GL_LIGHTING"));
    EXPECT_TRUE(drawn.operations.ends_with("glEnable GL_LIGHTING\n"));
}

TEST(Axis, labelsTellDataValuesAndStandBesideTheirEdges) {
    Cls3 axis;
    axis.TitleX = "Length";
    const std::vector<Text> texts = draw(axis).texts;
    std::vector<std::string> words;
    for (const Text& text : texts)
        words.push_back(text.text);
    EXPECT_THAT(words, testing::ElementsAre("10.4", "60.4", "110.4", "Y", "204.0", "454.0", "704.0", "Z", "3.0", "4.0",
                                            "5.0", "Length"));
    const auto expect = [&](std::size_t i, const Place& place, const std::vector<double>& rotation, GLuint font) {
        for (std::size_t k = 0; k < 3; ++k)
            EXPECT_NEAR(texts[i].place[k], place[k], 1e-5) << words[i] << " " << k;
        EXPECT_EQ(texts[i].rotation, rotation) << words[i];
        EXPECT_EQ(texts[i].listBase, font - 32) << words[i];
    };
    constexpr double letter = 1 / 4.01;
    expect(1, {6 - 1 - 0.5, 0.75, 4.955}, {0, 0, 1, 0}, FontList3);
    expect(3, {1 + (10.08 - letter) / 2 - 1.5, -0.25, 4.955}, {0, 0, 1, 0}, FontList5);
    expect(5, {0.5 - (5 * letter + 1.2), 4.5 - 0.25, 4.955}, {0, 0, 1, 0}, FontList3);
    expect(7, {0.5 - (5 * letter + 2.2), 2 + (5.08 - letter) / 2 + letter - 0.25, 4.955}, {-90, 0, 0, 1}, FontList5);
    expect(9, {10.58, 0.75, 4 - 0.125}, {90, 0, 1, 0}, FontList3);
    expect(11, {10.58, -0.25, 3 + (2.08 - 6 * letter) / 2 + 6 * letter - 0.625}, {90, 0, 1, 0}, FontList5);
}

TEST(Axis, anAxisTakesUpToFiveHundredIntervals) {
    for (int Cls3::*count : {&Cls3::LabelNumX, &Cls3::LabelNumY, &Cls3::LabelNumZ}) {
        Cls3 axis;
        const std::size_t others = draw(axis).texts.size() - 3;
        axis.*count = 500;
        EXPECT_EQ(draw(axis).texts.size(), others + 501);
        axis.*count = -1;
        EXPECT_EQ(draw(axis).texts.size(), others);
        axis.*count = 0;
        EXPECT_THROW(draw(axis), base::Failure);
        axis.*count = 501;
        try {
            draw(axis);
            ADD_FAILURE() << "501 intervals";
        } catch (const base::Failure& failure) {
            EXPECT_EQ(failure.code(), base::FailureCode::SubscriptOutOfRange);
            EXPECT_THAT(failure.what(), testing::AllOf(testing::HasSubstr("501"), testing::HasSubstr("500")));
        }
        EXPECT_NO_THROW(draw(axis, mode2D)) << "the count is no matter of a flat frame";
    }
}

TEST(Axis, arrowsPassThroughTheOriginAndEndInCones) {
    Cls3 axis;
    axis.AxisStyle = 2;
    gl::DisplayList list;
    axis.Draw(list, SceneState{mode4D, 1, 1, 1}, scales, 2, 2, 5, -7, -4, -1, 1);
    const Drawn drawn = read(list);
    ASSERT_EQ(drawn.blocks.size(), 1U);
    const std::set<Place> ends(drawn.blocks[0].vertices.begin(), drawn.blocks[0].vertices.end());
    EXPECT_EQ(ends,
              (std::set<Place>{{-3, -1, -1}, {6, -1, -1}, {-1, -10, -1}, {-1, 1, -1}, {-1, -1, -4}, {-1, -1, 2}}));
    EXPECT_THAT(drawn.operations, testing::HasSubstr("glTranslatef 6 -1 -1\nglRotatef 90 0 1 0\n"
                                                     "gluCylinder 0.2 0 0.5 16 16\n"));
    EXPECT_THAT(drawn.operations, testing::HasSubstr("glTranslatef -1 1 -1\nglRotatef -90 1 0 0\ngluCylinder"));
    EXPECT_THAT(drawn.operations, testing::HasSubstr("glTranslatef -1 -1 2\ngluCylinder"));
    EXPECT_TRUE(drawn.texts.empty());
}

TEST(Axis, aFlatFrameHasRoundNumbersUpToItsEndsAndNoneBeyond) {
    Cls3 axis;
    axis.AxisWidth = 3;
    axis.AxisColor = base::packColor(0, 0, 255);
    const Drawn drawn = draw(axis, mode2D);
    // Data Y over 10 to 110.8 go up, data X over 3 to 5.08 across; 120 and 5.5 lie past the ends.
    const std::vector<double> up{20, 40, 60, 80, 100};
    const std::vector<double> across{3, 3.5, 4, 4.5, 5};
    ASSERT_EQ(drawn.blocks.size(), 2U);
    ASSERT_EQ(drawn.blocks[0].vertices.size(), 2 * (up.size() + across.size()));
    const double depth = 1.75;
    for (std::size_t i = 0; i < up.size(); ++i) {
        EXPECT_EQ(drawn.blocks[0].vertices[2 * i], (Place{3 - 0.125, up[i] / 10 - 0.5, depth}));
        EXPECT_NEAR(drawn.blocks[0].vertices[2 * i + 1][0], 3 - 0.24 - 0.125, 1e-12);
    }
    for (std::size_t i = 0; i < across.size(); ++i) {
        const Place& inner = drawn.blocks[0].vertices[2 * (up.size() + i)];
        EXPECT_NEAR(inner[0], across[i] - 0.125, 1e-12);
        EXPECT_NEAR(inner[1], 0.5, 1e-12);
    }
    EXPECT_EQ(drawn.blocks[1].color, (Place{0, 0, 1}));
    for (const Place& corner : drawn.blocks[1].vertices) {
        EXPECT_NEAR(std::abs(corner[0] - (4.04 - 0.125)), 1.08, 1e-12);
        EXPECT_NEAR(std::abs(corner[1] - (6.04 - 0.5)), 5.08, 1e-12);
    }
    ASSERT_EQ(drawn.texts.size(), 5 * (up.size() + across.size() + 2));
    EXPECT_EQ(drawn.texts[0].text, "20");
    EXPECT_NEAR(drawn.texts[0].place[0], 2.96 - (2 / 4.01 + 0.55) - 0.125, 1e-5);
    EXPECT_NEAR(drawn.texts[4].place[0] - drawn.texts[0].place[0], 0.004, 1e-5);
    EXPECT_EQ(drawn.texts[49].text, "5.0");
    EXPECT_EQ(drawn.texts[50].text, "X");
    EXPECT_EQ(drawn.texts[55].text, "Y");
    EXPECT_THAT(drawn.operations, testing::HasSubstr("glLineWidth 3\nglColor3f 0 0 1\nglBegin GL_LINES"));
}

TEST(Axis, aValueAtTheEndOfAFlatFrameHasATickAndARangeOfNothingHasNone) {
    const Cls3 axis;
    gl::DisplayList list;
    axis.Draw(list, SceneState{mode2D}, AxisScales{1, 0, 1}, 2, -5, 5, 0, 0, 0.04, 6.96);
    EXPECT_THAT(read(list).texts, testing::Contains(testing::Field(&Text::text, "7")).Times(5));
    EXPECT_EQ(read(list).blocks[0].vertices.size(), 2U * 7) << "1 to 7 across and none up, where the scale is 0";
}

}  // namespace
}  // namespace tessaplot::scene

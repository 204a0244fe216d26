#include "gl/replay.h"

#include <GL/glext.h>
#include <gmock/gmock.h>

#include "base/failure.h"
#include "picture_comparison.h"

namespace tessaplot::gl::test {
namespace {

void addRectangle(DisplayList& list, double x, double y, double z, double size) {
    list.glBegin(GL_QUADS);
    list.glVertex3d(x, y, z);
    list.glVertex3d(x + size, y, z);
    list.glVertex3d(x + size, y + size, z);
    list.glVertex3d(x, y + size, z);
    list.glEnd();
}

/// A wavy surface of lit quads, each of them flat, and the lines of its grid.
DisplayListPtr surface() {
    auto list = std::make_shared<DisplayList>();
    constexpr int steps = 20;
    const auto height = [](int i, int j) { return std::sin(0.5 * i) + std::cos(0.4 * j); };
    const auto vertex = [&](int i, int j, double up) { list->glVertex3d(i * 0.4 - 4, height(i, j) + up, j * 0.4 - 4); };
    list->glShadeModel(GL_SMOOTH);
    for (int i = 0; i < steps; ++i)
        for (int j = 0; j < steps; ++j) {
            list->glBegin(GL_QUADS);
            for (const auto& [u, v] : {std::pair{i, j}, {i + 1, j}, {i + 1, j + 1}, {i, j + 1}}) {
                list->glNormal3d(-std::cos(0.5 * u), 1, std::sin(0.4 * v));
                list->glColor3d(u / 20.0, v / 20.0, 0.5);
                vertex(u, v, 0);
            }
            list->glEnd();
        }
    list->glLineWidth(2);
    for (int i = 0; i < steps; ++i) {
        list->glBegin(GL_LINE_STRIP);
        list->glColor3d(0, 0, 0.3);
        for (int j = 0; j <= steps; ++j)
            vertex(i, j, 0.02);
        list->glEnd();
    }
    return list;
}

TEST(Replay, AddsTheSamplesInFloatingPoint) {
    BothWays both;
    // The last number of samples is more than one pass adds.
    for (const int samples : {2, 8, 19}) {
        const Difference difference = both.draw(frameOf(surface(), samples));
        // Buffers and immediate mode may halve a quad along either diagonal: colours within it differ a little.
        EXPECT_LE(difference.largest, 8) << samples;
        EXPECT_LT(difference.share, 0.005) << samples;
        EXPECT_GT(difference.drawnShare, 0.15) << samples;
    }
}

TEST(Replay, KeepsOrderWeightsAndDepthOfTheSamples) {
    BothWays both;
    DisplayList frame;
    placeCamera(frame);
    frame.glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    frame.glColor3d(0, 0, 0);
    addRectangle(frame, -7, -5, 0, 3);
    frame.glClear(GL_ACCUM_BUFFER_BIT);
    // A sample that is not cleared shows what was drawn before; one is added twice, a part of one is drawn over.
    frame.glColor3d(1, 0, 0);
    addRectangle(frame, -1, -1, 0, 3);
    frame.glAccum(GL_LOAD, 0.25F);
    frame.glAccum(GL_ACCUM, 0.1F);
    frame.glColor3d(0, 1, 0);
    addRectangle(frame, 0, 0, 0, 2);
    frame.glAccum(GL_ACCUM, 0.3F);
    frame.glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    addRectangle(frame, 0, 0, 1, 2);
    frame.glAccum(GL_ACCUM, 0.35F);
    frame.glAccum(GL_RETURN, 0.9F);
    // Over the returned picture, with the depth of the last sample: hidden where that has drawn.
    frame.glColor3d(0, 0, 1);
    addRectangle(frame, -2, -2, 0, 5);
    const Difference difference = both.draw(frame);
    EXPECT_LE(difference.largest, 1);
    EXPECT_GT(difference.drawnShare, 0.99);
}

TEST(Replay, LeavesToImmediateModeWhatNoBatchCanHold) {
    BothWays both;
    auto list = std::make_shared<DisplayList>();
    list->glBegin(GL_TRIANGLE_FAN);  // The first vertex inherits the colour that the later ones set.
    list->glVertex3d(-4, 0, 0);
    for (int i = 0; i < 6; ++i) {
        list->glColor3d(i / 6.0, 0, 1);
        list->glVertex3d(-4 + 2 * std::cos(i), 2 * std::sin(i), 0);
    }
    list->glEnd();
    list->glBegin(GL_QUADS);  // A hole.
    list->glEnd();
    list->glBegin(GL_POLYGON);  // More corners than any other kind has.
    for (int i = 0; i < 7; ++i)
        list->glVertex3d(2 + 1.5 * std::cos(0.9 * i), 1.5 * std::sin(0.9 * i), 0);
    list->glEnd();
    list->glBegin(GL_TRIANGLES);  // A material between the vertices.
    list->glVertex3d(4, 2, 0);
    list->glMaterialfv(GL_FRONT_AND_BACK, GL_EMISSION, std::array<float, 4>{0.4F, 0, 0, 1});
    list->glVertex3d(6, 2, 0);
    list->glVertex3d(5, 4, 0);
    list->glEnd();
    auto turned = std::make_shared<DisplayList>();
    turned->glPushMatrix();
    turned->glRotatef(20, 0, 0, 1);
    turned->gluSphere(1, 10, 10);
    turned->glPopMatrix();
    list->glMatrixMode(GL_PROJECTION);  // Matrix calls that are none of the modelview's.
    list->glPushMatrix();
    list->glTranslatef(3, 3, 0);
    list->gluSphere(1, 10, 10);
    list->glCallList(turned);
    list->glPopMatrix();
    list->glMatrixMode(GL_MODELVIEW);
    list->glPushMatrix();  // A matrix that no vertex can be placed by, and one that stays.
    list->glScalef(1, 0, 1);
    list->glNormal3d(0, 0, 1);
    addRectangle(*list, -3, 0, 3, 6);
    list->glPopMatrix();
    list->glTranslatef(-5, -4, 0);
    addRectangle(*list, 0, 0, 0, 2);
    const Difference difference = both.draw(frameOf(list, 3));
    EXPECT_LE(difference.share, 0.0005);
    EXPECT_GT(difference.drawnShare, 0.05);
}

TEST(Replay, SpheresAreDrawnInEveryPolygonMode) {
    BothWays both;
    for (const GLenum mode : {GL_LINE, GL_POINT, GL_FILL}) {
        // Inherited from outside, set in the list, and set by a list that is called.
        auto inner = std::make_shared<DisplayList>();
        inner->glPolygonMode(GL_FRONT_AND_BACK, mode);
        inner->gluSphere(1, 9, 7);
        auto list = std::make_shared<DisplayList>();
        list->gluSphere(3.5, 14, 11);
        list->glTranslatef(4, 0, 0);
        list->glCallList(inner);
        list->glTranslatef(-8, 0, 0);
        list->gluSphere(2, 8, 8);
        const Difference difference = both.draw(frameOf(list, 2));
        EXPECT_LE(difference.share, 0.002) << mode;
        EXPECT_GT(difference.drawnShare, 0.01) << mode;
    }
}

TEST(Replay, SpheresShowTheirBacksWhereOneSeesThem) {
    BothWays both;
    const auto spheresAfter = [](const std::function<void(DisplayList&)>& prepare) {
        auto list = std::make_shared<DisplayList>();
        list->glColor3f(0.8F, 0.4F, 0.1F);
        prepare(*list);
        list->gluSphere(3, 12, 12);
        list->glTranslatef(4, 0, 0);
        list->gluSphere(2, 9, 9);
        list->glDisable(GL_BLEND);
        return list;
    };
    const DisplayListPtr plain = spheresAfter([](DisplayList&) {});
    const auto mirror = [](DisplayList& list) { list.glScalef(-1, 1, 1); };
    const auto cutByTheNearPlane = [](DisplayList& list) {
        list.glLoadIdentity();
        list.glTranslatef(0, 0, -2);
    };
    const auto transparent = [](DisplayList& list) {
        list.glEnable(GL_BLEND);
        list.glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
        list.glColor4f(0.2F, 0.4F, 0.9F, 0.4F);
    };
    const auto calling = [&](const auto& prepare) {
        auto list = std::make_shared<DisplayList>();
        prepare(*list);
        list->glCallList(plain);
        return list;
    };
    for (const DisplayListPtr& list : std::vector<DisplayListPtr>{
             plain, calling(mirror), spheresAfter(mirror), calling(cutByTheNearPlane), spheresAfter(transparent)}) {
        const Difference difference = both.draw(frameOf(list, 2));
        EXPECT_LE(difference.share, 0.0005) << toText(*list);
        EXPECT_GT(difference.drawnShare, 0.1) << toText(*list);
    }
}

TEST(Replay, TexturesComeFromTheSharedImage) {
    BothWays both;
    auto image = std::make_shared<TextureImage>();
    image->width = 5;  // Rows of 15 bytes: no multiple of 4.
    image->height = 3;
    for (int i = 0; i < 45; ++i)
        image->pixels.push_back(static_cast<std::uint8_t>(i * 37 % 256));
    const auto textured = [&](GLint mode) {
        auto list = std::make_shared<DisplayList>();
        list->glTexImage2D(image);
        list->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
        list->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
        list->glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, mode);
        list->glEnable(GL_TEXTURE_2D);
        list->glBegin(GL_QUADS);
        for (const auto& [u, v] : {std::pair{0, 0}, {1, 0}, {1, 1}, {0, 1}}) {
            list->glTexCoord2d(u, v);
            list->glColor4d(1, 0.5 + 0.5 * u, 0.9, 0.5);
            list->glVertex3d(u * 8 - 4, v * 6 - 3, 0);
        }
        list->glEnd();
        list->glDisable(GL_TEXTURE_2D);
        return list;
    };
    for (const GLint mode : {GL_MODULATE, GL_DECAL}) {
        const Difference difference = both.draw(frameOf(textured(mode), 2));
        EXPECT_LE(difference.largest, 2) << mode;
        EXPECT_GT(difference.drawnShare, 0.1) << mode;
    }
    image->pixels.resize(20);
    both.replay();
    EXPECT_THROW(Replay().draw(frameOf(textured(GL_DECAL)), 10, 10), base::Failure);
}

TEST(Replay, DragStepCompilesNothingAndAnEqualFrameDrawsNothing) {
    const OffscreenContext context;
    Replay replay;
    DisplayListPtr body = surface();
    EXPECT_TRUE(replay.draw(frameOf(body, 8), 60, 50));
    const Pixels pixels = replay.readPixels();
    EXPECT_EQ(replay.counts().compiled, 1U);
    EXPECT_EQ(replay.counts().drawCalls, 8U * 2);
    EXPECT_TRUE(replay.draw(frameOf(body, 2), 60, 50));
    EXPECT_EQ(replay.counts().compiled, 1U);
    EXPECT_TRUE(replay.draw(frameOf(body, 8), 60, 50));
    EXPECT_FALSE(replay.draw(frameOf(body, 8), 60, 50));
    EXPECT_EQ(replay.counts().drawCalls, 18U * 2);
    EXPECT_EQ(replay.readPixels(), pixels);
    EXPECT_TRUE(replay.draw(frameOf(body, 8), 61, 50));
    EXPECT_EQ(replay.counts().compiled, 1U);
    body = surface();
    EXPECT_TRUE(replay.draw(frameOf(body, 8), 61, 50));
    EXPECT_EQ(replay.counts().compiled, 2U);
}

TEST(Replay, PresentsAndReadsThePictureTheRightWayRound) {
    const OffscreenContext context;
    Replay replay;
    DisplayList frame;
    frame.glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    frame.glColor3f(1, 0, 0);
    addRectangle(frame, -1, 0.5, 0, 0.5);  // Half of the left half of the upper half.
    replay.draw(frame, 4, 8);
    Pixels expected(4U * 8 * 3, 255);
    for (std::size_t y = 0; y < 2; ++y)
        std::fill_n(expected.begin() + static_cast<std::ptrdiff_t>(y * 12 + 1), 2, std::uint8_t{0});
    EXPECT_EQ(replay.readPixels(), expected);

    std::array<GLuint, 2> window{};
    glGenFramebuffers(1, &window[0]);
    glGenRenderbuffers(1, &window[1]);
    glBindRenderbuffer(GL_RENDERBUFFER, window[1]);
    glRenderbufferStorage(GL_RENDERBUFFER, GL_RGBA8, 4, 8);
    glBindFramebuffer(GL_FRAMEBUFFER, window[0]);
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, window[1]);
    replay.present(window[0], 4, 8);
    std::array<std::uint8_t, 4> pixel{};
    glReadPixels(0, 7, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, pixel.data());
    EXPECT_THAT(pixel, testing::ElementsAre(255, 0, 0, 255));
    glReadPixels(0, 0, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, pixel.data());
    EXPECT_THAT(pixel, testing::ElementsAre(255, 255, 255, 255));
}

TEST(Replay, LeavesOutVolumesWithoutAnInside) {
    const OffscreenContext context;
    Replay replay;
    DisplayList frame;
    frame.glFrustum(-1, 1, -1, 1, -200, 2000);
    frame.glFrustum(-1, 1, -1, 1, 0, 2000);
    frame.glFrustum(-1, 1, 1, 1, 1, 2000);
    frame.glOrtho(0, 0, -1, 1, 1, 2);
    frame.glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    frame.glColor3f(0, 0, 0);
    addRectangle(frame, -1, -1, 0, 2);
    EXPECT_TRUE(replay.draw(frame, 4, 4));
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
    EXPECT_EQ(replay.readPixels(), Pixels(4U * 4 * 3, 0)) << "the matrix stays";
}

TEST(Replay, FailsWhereTheContextCannot) {
    EXPECT_THROW(Replay(), base::Failure);
    const OffscreenContext context;
    Replay replay;
    DisplayList frame;
    EXPECT_THROW(replay.draw(frame, 1'000'000, 10), base::Failure);
    EXPECT_TRUE(replay.draw(frame, 0, 0));
    frame.glAccum(GL_ACCUM + 100, 1);
    EXPECT_THROW(replay.draw(frame, 10, 10), base::Failure);
#ifdef TESSAPLOT_GL_CHECKS
    DisplayList unbalanced;
    unbalanced.glPopMatrix();
    EXPECT_THROW(replay.draw(unbalanced, 10, 10), base::Failure);
#endif
    EXPECT_TRUE(replay.draw(frameOf(surface()), 10, 10));
}

}  // namespace
}  // namespace tessaplot::gl::test

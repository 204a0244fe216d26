#include <cmath>
#include <random>

#include <gmock/gmock.h>

#include "picture_comparison.h"

namespace tessaplot::gl::test {
namespace {

/// Records lists of any operations in any order that OpenGL allows.
class RandomList {
 public:
    explicit RandomList(unsigned seed) : random_(seed) {}

    DisplayListPtr record(int operations, int depth = 0) {
        auto list = std::make_shared<DisplayList>();
        int pushed = 0;
        for (int i = 0; i < operations; ++i) {
            const int choice = pick(depth < 2 ? 20 : 19);
            if (choice < 8) block(*list);
            if (choice >= 8 && choice < 10) attribute(*list);
            if (choice >= 10 && choice < 12) state(*list);
            if (choice >= 12 && choice < 15) matrix(*list, pushed);
            if (choice >= 15 && choice < 19) quadric(*list);
            if (choice == 19) list->glCallList(record(10, depth + 1));
        }
        while (pushed-- > 0)
            list->glPopMatrix();
        return list;
    }

 private:
    int pick(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }
    double number(double low, double high) { return std::uniform_real_distribution<double>(low, high)(random_); }
    float single(double low, double high) { return static_cast<float>(number(low, high)); }
    template <std::size_t size>
    GLenum oneOf(const std::array<GLenum, size>& values) {
        return values[static_cast<std::size_t>(pick(static_cast<int>(size)))];
    }

    void attribute(DisplayList& list) {
        const int choice = pick(4);
        if (choice == 0) list.glNormal3d(number(-1, 1), number(-1, 1), 1);
        if (choice == 1) list.glColor4d(number(0, 1), number(0, 1), number(0, 1), number(0, 1));
        if (choice > 1) list.glColor3f(single(0, 1), single(0, 1), single(0, 1));
    }

    void block(DisplayList& list) {
        if (pick(4) == 0) return quads(list);
        if (pick(8) == 0) return polygon(list);
        const double x = number(-4, 4);
        const double y = number(-3, 3);
        const double z = number(-4, 4);
        const bool changesAtEachVertex = pick(2) == 0;
        list.glBegin(oneOf(std::array<GLenum, 9>{GL_POINTS, GL_LINES, GL_LINE_LOOP, GL_LINE_STRIP, GL_TRIANGLES,
                                                 GL_TRIANGLE_STRIP, GL_TRIANGLE_FAN, GL_QUAD_STRIP}));
        if (pick(2) == 0) attribute(list);
        for (int vertices = 4 + pick(6); vertices > 0; --vertices) {
            if (changesAtEachVertex) attribute(list);
            list.glVertex3d(x + number(-1, 1), y + number(-1, 1), z + number(-1, 1));
        }
        list.glEnd();
    }

    void polygon(DisplayList& list) {
        const double x = number(-4, 4);
        const double y = number(-3, 3);
        const int corners = 3 + pick(4);
        list.glBegin(GL_POLYGON);
        for (int i = 0; i < corners; ++i) {
            list.glColor3d(number(0, 1), number(0, 1), number(0, 1));
            list.glVertex3d(x + std::cos(6.2 * i / corners), y + std::sin(6.2 * i / corners), x - y);
        }
        list.glEnd();
    }

    /// Flat ones of one colour: how OpenGL halves others may differ from buffers to immediate mode.
    void quads(DisplayList& list) {
        list.glBegin(GL_QUADS);
        if (pick(2) == 0) attribute(list);
        for (int count = pick(3); count >= 0; --count) {
            const double x = number(-4, 4);
            const double y = number(-3, 3);
            const double z = number(-4, 4);
            const double a = number(-1, 1);
            const double b = number(-1, 1);
            list.glVertex3d(x, y, z);
            list.glVertex3d(x + 1, y + a, z);
            list.glVertex3d(x + 1 + a, y + a, z + b);
            list.glVertex3d(x + a, y, z + b);
        }
        list.glEnd();
    }

    void state(DisplayList& list) {
        const bool on = pick(2) == 0;
        const int choice = pick(6);
        if (choice == 0) {
            const GLenum capability = oneOf(std::array<GLenum, 3>{GL_LIGHTING, GL_COLOR_MATERIAL, GL_BLEND});
            on ? list.glEnable(capability) : list.glDisable(capability);
        }
        if (choice == 1) list.glLineWidth(static_cast<float>(1 + pick(3)));
        if (choice == 2) list.glShadeModel(on ? GL_FLAT : GL_SMOOTH);
        if (choice == 3)
            list.glPolygonMode(GL_FRONT_AND_BACK, oneOf(std::array<GLenum, 4>{GL_LINE, GL_POINT, GL_FILL, GL_FILL}));
        if (choice == 4) list.glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
        if (choice == 5)
            list.glMaterialfv(GL_FRONT_AND_BACK, GL_SPECULAR,
                              std::array<float, 4>{single(0, 1), single(0, 1), single(0, 1), 1});
    }

    void matrix(DisplayList& list, int& pushed) {
        const int choice = pick(6);
        if (choice == 0) list.glTranslatef(single(-1, 1), single(-1, 1), single(-1, 1));
        if (choice == 1) list.glRotatef(single(-180, 180), single(-1, 1), single(-1, 1), single(-1, 1));
        if (choice == 2) list.glScalef(single(0.7, 1.3), single(0.7, 1.3), single(0.7, 1.3));
        if (choice == 3 && pushed > 0) {
            list.glPopMatrix();
            --pushed;
        }
        if (choice > 3) {
            list.glPushMatrix();
            ++pushed;
        }
    }

    void quadric(DisplayList& list) {
        list.glPushMatrix();
        if (pick(2) == 0) attribute(list);
        list.glTranslatef(single(-5, 5), single(-4, 4), single(-5, 5));
        if (pick(2) == 0) list.glRotatef(single(-180, 180), 1, single(-1, 1), 0);
        list.gluNewQuadric();
        if (pick(2) == 0)
            list.gluSphere(number(0.1, 1), 3 + pick(8), 2 + pick(8));
        else
            list.gluCylinder(number(0.1, 0.5), pick(2) == 0 ? 0 : 0.3, number(0.5, 2), 3 + pick(8), 1 + pick(6));
        list.gluDeleteQuadric();
        list.glPopMatrix();
    }

    std::mt19937 random_;
};

TEST(Replay, DrawsRandomListsAsImmediateModeDoes) {
    BothWays both;
    double shares = 0;
    constexpr unsigned lists = 60;
    for (unsigned seed = 1; seed <= lists; ++seed) {
        const DisplayListPtr body = RandomList(seed).record(60);
        const Difference difference = both.draw(frameOf(body, seed % 3 == 0 ? 2 : 1));
        // Most lists differ in no pixel. The rest is rounding: of vertices that are placed ahead, and of quads that
        // are halved along the other diagonal.
        EXPECT_LT(difference.share, 0.006) << "seed " << seed;
        EXPECT_GT(difference.drawnShare, 0.02) << "seed " << seed;
        shares += difference.share / lists;
    }
    EXPECT_LT(shares, 0.0005);
}

}  // namespace
}  // namespace tessaplot::gl::test

#include "gl/display_list.h"

#include <gmock/gmock.h>

namespace tessaplot::gl {
namespace {

TEST(DisplayList, TextExpandsCalledListsAndNamesConstants) {
    auto body = std::make_shared<DisplayList>();
    body->glBegin(GL_LINES);
    body->glColor3f(0.1F, 1, 0);
    body->glVertex3d(1, 2.5, -3);
    body->glEnd();
    DisplayList scene;
    scene.glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    for (const float weight : {0.5F, 0.125F}) {
        scene.glCallList(body);
        scene.glAccum(GL_ACCUM, weight);
    }
    scene.glMaterialfv(GL_FRONT_AND_BACK, GL_SHININESS, std::array<float, 1>{106.551F});
    scene.glCallLists(GL_BYTE, "5\"\xff");
    const std::string lines = "glBegin GL_LINES\nglColor3f 0.1 1 0\nglVertex3d 1 2.5 -3\nglEnd\n";
    EXPECT_EQ(toText(scene), "glClear GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT\n" + lines + "glAccum GL_ACCUM 0.5\n" +
                                 lines + "glAccum GL_ACCUM 0.125\n" +
                                 "glMaterialfv GL_FRONT_AND_BACK GL_SHININESS 106.551\n" +
                                 "glCallLists 3 GL_BYTE \"5\\\"\\xff\"\n");
}

TEST(DisplayList, AppendedOperationsReadLikeTheOnesTheyCopy) {
    DisplayList list;
    list.glLightfv(GL_LIGHT0, GL_POSITION, std::array<float, 4>{1, 2, 3, 1});
    list.glCallLists(GL_UNSIGNED_BYTE, "text");
    list.glTexImage2D(std::make_shared<TextureImage>(TextureImage{2, 1, 3, {1, 2, 3, 4, 5, 6}}));
    list.glCallList(std::make_shared<DisplayList>());
    list.glLightModelfv(GL_LIGHT_MODEL_TWO_SIDE, std::array<float, 1>{1});
    DisplayList copy;
    list.forEach([&](const Operation& operation) { copy.append(list, operation); });
    EXPECT_EQ(copy, list);
}

}  // namespace
}  // namespace tessaplot::gl

#include "scene/light.h"

#include <string>

#include <gtest/gtest.h>

#include "scene/axis.h"
#include "scene/material.h"

namespace tessaplot::scene {
namespace {

std::string lightText(Cls10& light) {
    gl::DisplayList list;
    light.SetLight(list);
    return gl::toText(list);
}

std::string materialText(Cls11& material, int type) {
    gl::DisplayList list;
    material.SetMaterial(list, type);
    return gl::toText(list);
}

TEST(Light, setsFourLightsAndSwitchesOnTwo) {
    Cls10 light;
    light.Position = {10, 20, 30, 1};
    light.Diffuse = {0.5, 0, 0, 1};
    light.Amission = {0, 0.25, 0, 1};
    light.Specular = {0, 0, 0.75, 1};
    std::string text;
    for (const std::string name : {"GL_LIGHT0", "GL_LIGHT1", "GL_LIGHT2", "GL_LIGHT3"})
        text += "glLightfv " + name + " GL_POSITION " + (name == "GL_LIGHT0" ? "10 20 30 1" : "-10 -10 -10 1") +
                "\nglLightfv " + name + " GL_DIFFUSE 0.5 0 0 1\nglLightfv " + name +
                " GL_AMBIENT 0 0.25 0 1\nglLightfv " + name + " GL_SPECULAR 0 0 0.75 1\n";
    EXPECT_EQ(lightText(light), text +
                                    "glLightModelfv GL_LIGHT_MODEL_AMBIENT 1 0 0 0\n"
                                    "glLightModelfv GL_LIGHT_MODEL_TWO_SIDE 1\n"
                                    "glEnable GL_LIGHTING\nglEnable GL_LIGHT0\nglEnable GL_LIGHT1\n");
    light.Enabled = false;
    EXPECT_EQ(lightText(light), "glDisable GL_LIGHTING\nglDisable GL_LIGHT0\nglDisable GL_LIGHT1\n");
}

TEST(Material, emitsTheValuesOfItsNumber) {
    Cls11 material;
    EXPECT_EQ(materialText(material, 5),
              "glMaterialfv GL_FRONT_AND_BACK GL_DIFFUSE 0 0 0 0\n"
              "glMaterialfv GL_FRONT_AND_BACK GL_SPECULAR 0.622449 0.622449 0.622449 0\n"
              "glMaterialfv GL_FRONT_AND_BACK GL_SHININESS 6.53061\n"
              "glMaterialfv GL_FRONT_AND_BACK GL_EMISSION 0.0188407 0.940276 1 0\n"
              "glMaterialfv GL_FRONT_AND_BACK GL_AMBIENT 0 0 0 0\n");
    EXPECT_EQ(materialNames()[4], "Neon");
    const std::string winter = materialText(material, 13);
    EXPECT_NE(winter.find("GL_SHININESS 128\n"), std::string::npos) << winter;
    for (const int unknown : {0, 14, -1})
        EXPECT_EQ(materialText(material, unknown), winter);
}

TEST(Axis, goesBackToItsDefaultsButKeepsItsStyle) {
    Cls3 axis;
    EXPECT_FALSE(axis.Show);
    axis.AxisStyle = 2;
    axis.TitleX = "Length";
    axis.SetDefault();
    EXPECT_TRUE(axis.AxisStyle == 2 && axis.Show && axis.TitleX == "X");
    EXPECT_EQ(axis.XZGridColor, 153 * 0x010101);
}

}  // namespace
}  // namespace tessaplot::scene

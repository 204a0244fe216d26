#include "scene/text.h"

#include "base/character.h"

namespace tessaplot::scene {

namespace {

/// Outline lists begin at the blank.
constexpr GLuint firstOutlineCode = 32;
constexpr float emSize = 0.6F;

float channel(int byte) {
    return static_cast<float>(byte / 255.0);
}

/// Calls `visit` with each character of a UTF-8 text; a byte that is no part of one counts as the character of its
/// code.
template <class Visitor>
void forEachCharacter(std::string_view text, Visitor&& visit) {
    while (!text.empty()) {
        const auto lead = static_cast<unsigned char>(text.front());
        const std::optional<char32_t> character = base::takeUtf8Character(text);
        if (!character) text.remove_prefix(1);
        visit(character.value_or(base::windows1252Character(lead)));
    }
}

}  // namespace

void SetGLColor(gl::DisplayList& list, base::PackedColor color) {
    list.glColor3f(channel(base::RedOf(color)), channel(base::GreenOf(color)), channel(base::BlueOf(color)));
}

void DrawBitmapText(gl::DisplayList& list, GLuint base, std::string_view text, float x, float y, float z, float red,
                    float green, float blue) {
    list.glColor3f(red, green, blue);
    list.glRasterPos3f(x, y, z);
    if (text.empty()) return;
    list.glPushAttrib(GL_LIST_BIT);
    list.glListBase(base);
    list.glCallLists(GL_UNSIGNED_BYTE, TextToBytes(text));
    list.glPopAttrib();
}

void DrawText3D(gl::DisplayList& list, GLuint base, std::string_view text, double x, double y, double z,
                const TextRotation& rotation, std::optional<base::PackedColor> color) {
    list.glPushAttrib(GL_POLYGON_BIT);
    list.glPushMatrix();
    list.glListBase(base - firstOutlineCode);
    list.glTranslatef(static_cast<float>(x), static_cast<float>(y), static_cast<float>(z));
    list.glScalef(emSize, emSize, emSize);
    list.glRotatef(static_cast<float>(rotation[0]), static_cast<float>(rotation[1]), static_cast<float>(rotation[2]),
                   static_cast<float>(rotation[3]));
    if (color) SetGLColor(list, *color);
    list.glCallLists(GL_BYTE, TextToBytes(text));
    list.glPopMatrix();
    list.glPopAttrib();
}

std::string TextToBytes(std::string_view text) {
    std::string bytes;
    forEachCharacter(text, [&bytes](char32_t character) {
        bytes += static_cast<char>(base::windows1252Byte(character).value_or('?'));
    });
    return bytes;
}

std::size_t characterCount(std::string_view text) {
    std::size_t count = 0;
    forEachCharacter(text, [&count](char32_t) { ++count; });
    return count;
}

}  // namespace tessaplot::scene

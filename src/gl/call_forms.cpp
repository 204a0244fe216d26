#include "gl/call_forms.h"

#include <array>
#include <cstdint>

namespace tessaplot::gl {

namespace {

constexpr CallForm knownForm(Op op) {
    switch (op) {
        case Op::Begin:
            return {"glBegin", "p"};
        case Op::End:
            return {"glEnd", ""};
        case Op::Vertex3d:
            return {"glVertex3d", "ddd"};
        case Op::Normal3d:
            return {"glNormal3d", "ddd"};
        case Op::Color3f:
            return {"glColor3f", "fff"};
        case Op::Color3d:
            return {"glColor3d", "ddd"};
        case Op::Color4f:
            return {"glColor4f", "ffff"};
        case Op::Color4d:
            return {"glColor4d", "dddd"};
        case Op::TexCoord2f:
            return {"glTexCoord2f", "ff"};
        case Op::TexCoord2d:
            return {"glTexCoord2d", "dd"};
        case Op::Enable:
            return {"glEnable", "e"};
        case Op::Disable:
            return {"glDisable", "e"};
        case Op::LineWidth:
            return {"glLineWidth", "f"};
        case Op::ShadeModel:
            return {"glShadeModel", "e"};
        case Op::PolygonMode:
            return {"glPolygonMode", "ee"};
        case Op::PolygonOffset:
            return {"glPolygonOffset", "ff"};
        case Op::Hint:
            return {"glHint", "ee"};
        case Op::BlendFunc:
            return {"glBlendFunc", "bb"};
        case Op::DepthMask:
            return {"glDepthMask", "o"};
        case Op::ColorMaterial:
            return {"glColorMaterial", "ee"};
        case Op::Materialfv:
            return {"glMaterialfv", "ee*"};
        case Op::Lightfv:
            return {"glLightfv", "le*"};
        case Op::LightModelfv:
            return {"glLightModelfv", "e*"};
        case Op::MatrixMode:
            return {"glMatrixMode", "e"};
        case Op::LoadIdentity:
            return {"glLoadIdentity", ""};
        case Op::PushMatrix:
            return {"glPushMatrix", ""};
        case Op::PopMatrix:
            return {"glPopMatrix", ""};
        case Op::MultMatrixf:
            return {"glMultMatrixf", "*"};
        case Op::Translatef:
            return {"glTranslatef", "fff"};
        case Op::Rotatef:
            return {"glRotatef", "ffff"};
        case Op::Scalef:
            return {"glScalef", "fff"};
        case Op::Ortho:
            return {"glOrtho", "dddddd"};
        case Op::Frustum:
            return {"glFrustum", "dddddd"};
        case Op::LookAt:
            return {"gluLookAt", "ddddddddd"};
        case Op::RenderMode:
            return {"glRenderMode", "e"};
        case Op::Viewport:
            return {"glViewport", "iiii"};
        case Op::Clear:
            return {"glClear", "c"};
        case Op::Accum:
            return {"glAccum", "ef"};
        case Op::Flush:
            return {"glFlush", ""};
        case Op::Finish:
            return {"glFinish", ""};
        case Op::PushAttrib:
            return {"glPushAttrib", "a"};
        case Op::PopAttrib:
            return {"glPopAttrib", ""};
        case Op::RasterPos3f:
            return {"glRasterPos3f", "fff"};
        case Op::ListBase:
            return {"glListBase", "i"};
        case Op::CallListsText:
            return {"glCallLists", "ie"};
        case Op::TexParameteri:
            return {"glTexParameteri", "eee"};
        case Op::TexEnvi:
            return {"glTexEnvi", "eee"};
        case Op::TexImage2D:
            return {"glTexImage2D", ""};
        case Op::NewQuadric:
            return {"gluNewQuadric", ""};
        case Op::DeleteQuadric:
            return {"gluDeleteQuadric", ""};
        case Op::Sphere:
            return {"gluSphere", "dii"};
        case Op::Cylinder:
            return {"gluCylinder", "dddii"};
        case Op::CallList:
            return {"glCallList", ""};
    }
    return {"", ""};
}

constexpr std::size_t opCount = static_cast<std::size_t>(Op::CallList) + 1;

/// How many numbers each operation has, -1 where that differs from call to call.
constexpr auto numberCounts = [] {
    std::array<std::int8_t, opCount> counts{};
    for (std::size_t i = 0; i < opCount; ++i) {
        const std::string_view arguments = knownForm(static_cast<Op>(i)).arguments;
        const bool open = !arguments.empty() && arguments.back() == '*';
        counts[i] = static_cast<std::int8_t>(open ? -1 : static_cast<int>(arguments.size()));
    }
    return counts;
}();

}  // namespace

CallForm formOf(Op op) {
    return knownForm(op);
}

int numberCount(Op op) {
    return numberCounts[static_cast<std::size_t>(op)];
}

}  // namespace tessaplot::gl

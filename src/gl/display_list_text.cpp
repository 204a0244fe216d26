#include <string_view>

#include "base/number_text.h"
#include "gl/display_list.h"

namespace tessaplot::gl {

namespace {

/// Name and argument kinds of a call, one letter an argument: d double, f float, i integer, e constant, p primitive,
/// b blend factor, c buffer bits, a attribute bits, l light, o boolean, * further floats.
struct CallForm {
    std::string_view name;
    std::string_view arguments;
};

CallForm formOf(Op op) {
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

struct Constant {
    unsigned value;
    std::string_view name;
};

#define TESSAPLOT_CONSTANT(name) \
    { name, #name }

constexpr Constant primitives[] = {
    TESSAPLOT_CONSTANT(GL_POINTS),       TESSAPLOT_CONSTANT(GL_LINES),     TESSAPLOT_CONSTANT(GL_LINE_LOOP),
    TESSAPLOT_CONSTANT(GL_LINE_STRIP),   TESSAPLOT_CONSTANT(GL_TRIANGLES), TESSAPLOT_CONSTANT(GL_TRIANGLE_STRIP),
    TESSAPLOT_CONSTANT(GL_TRIANGLE_FAN), TESSAPLOT_CONSTANT(GL_QUADS),     TESSAPLOT_CONSTANT(GL_QUAD_STRIP),
    TESSAPLOT_CONSTANT(GL_POLYGON),
};

constexpr Constant blendFactors[] = {
    TESSAPLOT_CONSTANT(GL_ZERO),
    TESSAPLOT_CONSTANT(GL_ONE),
    TESSAPLOT_CONSTANT(GL_SRC_ALPHA),
    TESSAPLOT_CONSTANT(GL_ONE_MINUS_SRC_ALPHA),
};

constexpr Constant bufferBits[] = {
    TESSAPLOT_CONSTANT(GL_COLOR_BUFFER_BIT),
    TESSAPLOT_CONSTANT(GL_DEPTH_BUFFER_BIT),
    TESSAPLOT_CONSTANT(GL_ACCUM_BUFFER_BIT),
};

constexpr Constant attributeBits[] = {
    TESSAPLOT_CONSTANT(GL_POLYGON_BIT),
    TESSAPLOT_CONSTANT(GL_LIST_BIT),
};

constexpr Constant constants[] = {
    TESSAPLOT_CONSTANT(GL_FRONT),
    TESSAPLOT_CONSTANT(GL_BACK),
    TESSAPLOT_CONSTANT(GL_FRONT_AND_BACK),
    TESSAPLOT_CONSTANT(GL_LIGHTING),
    TESSAPLOT_CONSTANT(GL_LIGHT0),
    TESSAPLOT_CONSTANT(GL_LIGHT1),
    TESSAPLOT_CONSTANT(GL_COLOR_MATERIAL),
    TESSAPLOT_CONSTANT(GL_LINE_SMOOTH),
    TESSAPLOT_CONSTANT(GL_BLEND),
    TESSAPLOT_CONSTANT(GL_DEPTH_TEST),
    TESSAPLOT_CONSTANT(GL_CULL_FACE),
    TESSAPLOT_CONSTANT(GL_POLYGON_OFFSET_FILL),
    TESSAPLOT_CONSTANT(GL_NORMALIZE),
    TESSAPLOT_CONSTANT(GL_TEXTURE_2D),
    TESSAPLOT_CONSTANT(GL_LINE_SMOOTH_HINT),
    TESSAPLOT_CONSTANT(GL_NICEST),
    TESSAPLOT_CONSTANT(GL_FASTEST),
    TESSAPLOT_CONSTANT(GL_DONT_CARE),
    TESSAPLOT_CONSTANT(GL_FLAT),
    TESSAPLOT_CONSTANT(GL_SMOOTH),
    TESSAPLOT_CONSTANT(GL_POINT),
    TESSAPLOT_CONSTANT(GL_LINE),
    TESSAPLOT_CONSTANT(GL_FILL),
    TESSAPLOT_CONSTANT(GL_AMBIENT),
    TESSAPLOT_CONSTANT(GL_DIFFUSE),
    TESSAPLOT_CONSTANT(GL_SPECULAR),
    TESSAPLOT_CONSTANT(GL_EMISSION),
    TESSAPLOT_CONSTANT(GL_SHININESS),
    TESSAPLOT_CONSTANT(GL_AMBIENT_AND_DIFFUSE),
    TESSAPLOT_CONSTANT(GL_POSITION),
    TESSAPLOT_CONSTANT(GL_LIGHT_MODEL_AMBIENT),
    TESSAPLOT_CONSTANT(GL_LIGHT_MODEL_TWO_SIDE),
    TESSAPLOT_CONSTANT(GL_MODELVIEW),
    TESSAPLOT_CONSTANT(GL_PROJECTION),
    TESSAPLOT_CONSTANT(GL_RENDER),
    TESSAPLOT_CONSTANT(GL_ACCUM),
    TESSAPLOT_CONSTANT(GL_LOAD),
    TESSAPLOT_CONSTANT(GL_RETURN),
    TESSAPLOT_CONSTANT(GL_BYTE),
    TESSAPLOT_CONSTANT(GL_UNSIGNED_BYTE),
    TESSAPLOT_CONSTANT(GL_TEXTURE_ENV),
    TESSAPLOT_CONSTANT(GL_TEXTURE_ENV_MODE),
    TESSAPLOT_CONSTANT(GL_TEXTURE_WRAP_S),
    TESSAPLOT_CONSTANT(GL_TEXTURE_WRAP_T),
    TESSAPLOT_CONSTANT(GL_TEXTURE_MIN_FILTER),
    TESSAPLOT_CONSTANT(GL_TEXTURE_MAG_FILTER),
    TESSAPLOT_CONSTANT(GL_REPEAT),
    TESSAPLOT_CONSTANT(GL_CLAMP),
    TESSAPLOT_CONSTANT(GL_NEAREST),
    TESSAPLOT_CONSTANT(GL_LINEAR),
    TESSAPLOT_CONSTANT(GL_MODULATE),
    TESSAPLOT_CONSTANT(GL_DECAL),
    TESSAPLOT_CONSTANT(GL_REPLACE),
};

#undef TESSAPLOT_CONSTANT

std::string nameOf(double number, std::span<const Constant> table) {
    const auto value = static_cast<unsigned>(number);
    for (const Constant& constant : table)
        if (constant.value == value) return std::string(constant.name);
    return std::to_string(value);
}

std::string bitNames(double number, std::span<const Constant> table) {
    auto rest = static_cast<unsigned>(number);
    std::string names;
    const auto append = [&names](std::string_view name) {
        if (!names.empty()) names += " | ";
        names += name;
    };
    for (const Constant& bit : table) {
        if ((rest & bit.value) == 0) continue;
        append(bit.name);
        rest &= ~bit.value;
    }
    if (rest != 0 || names.empty()) append(std::to_string(rest));
    return names;
}

std::string argumentText(char kind, double number) {
    switch (kind) {
        case 'd':
            return base::shortestText(number);
        case 'i':
            return std::to_string(static_cast<long long>(number));
        case 'p':
            return nameOf(number, primitives);
        case 'b':
            return nameOf(number, blendFactors);
        case 'c':
            return bitNames(number, bufferBits);
        case 'a':
            return bitNames(number, attributeBits);
        case 'o':
            return number != 0 ? "GL_TRUE" : "GL_FALSE";
        case 'l':
            return "GL_LIGHT" + std::to_string(static_cast<unsigned>(number) - GL_LIGHT0);
        case 'e':
            return nameOf(number, constants);
        default:
            return base::shortestText(static_cast<float>(number));
    }
}

void appendQuoted(std::string& out, const std::string& text) {
    constexpr std::string_view hex = "0123456789abcdef";
    out += '"';
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (byte < 32 || byte > 126) {
            out += "\\x";
            out += hex[byte / 16];
            out += hex[byte % 16];
        } else {
            out += c;
        }
    }
    out += '"';
}

void appendCall(std::string& out, const DisplayList& list, const Operation& operation) {
    const CallForm form = formOf(operation.op);
    out += form.name;
    std::size_t kind = 0;
    for (const double number : operation.numbers) {
        const char letter = kind < form.arguments.size() ? form.arguments[kind] : '*';
        out += ' ';
        out += argumentText(letter, number);
        if (letter != '*') ++kind;
    }
    if (operation.op == Op::CallListsText) {
        out += ' ';
        appendQuoted(out, list.text(operation.object));
    }
    if (operation.op == Op::TexImage2D) {
        const TextureImage& image = *list.image(operation.object);
        out += ' ' + std::to_string(image.width) + ' ' + std::to_string(image.height) + ' ' +
               std::to_string(image.channels);
    }
    out += '\n';
}

void appendList(std::string& out, const DisplayList& list) {
    list.forEach([&](const Operation& operation) {
        if (operation.op == Op::CallList)
            appendList(out, *list.called(operation.object));
        else
            appendCall(out, list, operation);
    });
}

}  // namespace

int numberCount(Op op) {
    static const auto counts = [] {
        std::array<std::int8_t, static_cast<std::size_t>(Op::CallList) + 1> table{};
        for (std::size_t i = 0; i < table.size(); ++i) {
            const std::string_view arguments = formOf(static_cast<Op>(i)).arguments;
            const bool open = !arguments.empty() && arguments.back() == '*';
            table[i] = static_cast<std::int8_t>(open ? -1 : static_cast<int>(arguments.size()));
        }
        return table;
    }();
    return counts[static_cast<std::size_t>(op)];
}

std::string toText(const DisplayList& list) {
    std::string out;
    appendList(out, list);
    return out;
}

}  // namespace tessaplot::gl

#include "gl/argument_text.h"

#include <span>
#include <string_view>

#include <GL/gl.h>

#include "base/number_text.h"

namespace tessaplot::gl {

namespace {

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

}  // namespace

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

}  // namespace tessaplot::gl

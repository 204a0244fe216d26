#pragma once

#include <array>

#include "gl/compiled_list.h"
#include "gl/display_list.h"
#include "gl/vertex_pool.h"

namespace tessaplot::gl {

/// The attributes beside the position, one by one.
inline constexpr std::array eachAttribute{normalAttribute, colorAttribute, texCoordAttribute};

/// True if both vertices have the same value of the attribute.
inline bool haveSame(Attribute attribute, const Vertex& a, const Vertex& b) {
    switch (attribute) {
        case normalAttribute:
            return a.normal == b.normal;
        case colorAttribute:
            return a.color == b.color;
        default:
            return a.texCoord == b.texCoord;
    }
}

/// The current normal, colour and texture coordinate; those not known are what they were when the list was called.
struct CurrentValues {
    unsigned known = 0;  ///< Attributes.
    Vertex values;       ///< The position is not used.

    bool knows(Attribute attribute) const { return (known & attribute) != 0; }
    bool holds(Attribute attribute, const Vertex& wanted) const {
        return knows(attribute) && haveSame(attribute, values, wanted);
    }

    /// Takes the value that an operation sets; false for one that sets no attribute.
    bool take(const Operation& operation);
    void setNormal(const Vector3f& normal) {
        known |= normalAttribute;
        values.normal = normal;
    }
    void set(Attribute attribute, const Vertex& from);
    void forget(unsigned attributes = allAttributes) { known &= ~attributes; }
};

inline bool CurrentValues::take(const Operation& operation) {
    const auto f = [n = operation.numbers](std::size_t i) { return static_cast<float>(n[i]); };
    switch (operation.op) {
        case Op::Normal3d:
            setNormal({f(0), f(1), f(2)});
            return true;
        case Op::Color3f:
        case Op::Color3d:
            known |= colorAttribute;
            values.color = {f(0), f(1), f(2), 1};
            return true;
        case Op::Color4f:
        case Op::Color4d:
            known |= colorAttribute;
            values.color = {f(0), f(1), f(2), f(3)};
            return true;
        case Op::TexCoord2f:
        case Op::TexCoord2d:
            known |= texCoordAttribute;
            values.texCoord = {f(0), f(1)};
            return true;
        default:
            return false;
    }
}

inline void CurrentValues::set(Attribute attribute, const Vertex& from) {
    known |= attribute;
    if (attribute == normalAttribute) values.normal = from.normal;
    if (attribute == colorAttribute) values.color = from.color;
    if (attribute == texCoordAttribute) values.texCoord = from.texCoord;
}

}  // namespace tessaplot::gl

#include "gl/passed_values.h"

namespace tessaplot::gl {

void PassedValues::pass(Attribute attribute, const Vertex& value) {
    if (passed_.holds(attribute, value)) return;
    passed_.set(attribute, value);
    const auto& [position, normal, color, texCoord] = value;
    if (attribute == normalAttribute) calls_.glNormal3d(normal[0], normal[1], normal[2]);
    if (attribute == colorAttribute) calls_.glColor4f(color[0], color[1], color[2], color[3]);
    if (attribute == texCoordAttribute) calls_.glTexCoord2d(texCoord[0], texCoord[1]);
}

void PassedValues::pass(const CurrentValues& current) {
    for (const Attribute attribute : eachAttribute)
        if (current.knows(attribute)) pass(attribute, current.values);
}

}  // namespace tessaplot::gl

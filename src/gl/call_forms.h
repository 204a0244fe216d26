#pragma once

#include <string_view>

#include "gl/display_list.h"

namespace tessaplot::gl {

/// Name and argument kinds of a call, one letter an argument: d double, f float, i integer, e constant, p primitive,
/// b blend factor, c buffer bits, a attribute bits, l light, o boolean, * further floats.
struct CallForm {
    std::string_view name;
    std::string_view arguments;
};

/// The form in which an operation is called. A list that is called has no arguments, nor has the image of a texture:
/// they are no numbers.
CallForm formOf(Op op);

}  // namespace tessaplot::gl

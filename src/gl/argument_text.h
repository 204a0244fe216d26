#pragma once

#include <string>

namespace tessaplot::gl {

/// An argument of a call as it stands in the call's text; `kind` is a letter of `CallForm::arguments`. A constant
/// without a name is its number.
std::string argumentText(char kind, double number);

}  // namespace tessaplot::gl

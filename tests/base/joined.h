#pragma once

#include <sstream>
#include <string>

namespace tessaplot {

/// The values as one text, each with a blank before it, so that many are compared at a glance.
template <class... Values>
std::string joined(const Values&... values) {
    std::ostringstream text;
    ((text << ' ' << values), ...);
    return text.str();
}

}  // namespace tessaplot

#pragma once

namespace tessaplot::graphs {

/// A letter of ASCII as a capital; any other character as it is, whatever the locale.
constexpr char upperCase(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

}  // namespace tessaplot::graphs

#pragma once

#include <span>
#include <string_view>

namespace tessaplot::ui {

/// A command of the Demo menu and the sample that it opens.
struct Demo {
    std::string_view command;
    std::string_view fileName;  ///< In the folder of the samples.
};

/// All of them; the menu table gives their order.
std::span<const Demo> demos();

}  // namespace tessaplot::ui

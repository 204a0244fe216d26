#pragma once

#include <exception>
#include <string>

namespace tessaplot::ui {

/// What a box tells a person of a failure.
std::string failureText(const std::exception& failure);

/// True if a person stopped the action: that is no news to anybody.
bool isCancelled(const std::exception& failure);

}  // namespace tessaplot::ui

#pragma once

#include <filesystem>
#include <memory>

#include "core/document.h"

namespace tessaplot::qt {

class Application;

/// The desktop program from its window's creation to its end: opens the document, or an empty one if the path is empty,
/// and returns the exit status: 0, or 1 if the document could not be read or a failure outside any command ended it.
/// `ahead` is the document as it is being read already, if it is.
int runProgram(Application& application, const std::filesystem::path& document,
               std::shared_ptr<core::DocumentAhead> ahead = nullptr);

}  // namespace tessaplot::qt

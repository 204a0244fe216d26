#pragma once

#include <filesystem>

namespace tessaplot::qt {

class Application;

/// The desktop program from its window's creation to its end: opens the document, or an empty one if the path is empty,
/// and returns the exit status: 0, or 1 if the document could not be read or a failure outside any command ended it.
int runProgram(Application& application, const std::filesystem::path& document);

}  // namespace tessaplot::qt

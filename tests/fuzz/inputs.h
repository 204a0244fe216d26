#pragma once

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "base/files.h"

namespace tessaplot::fuzz {

using tessaplot::bytesOf;

/// The files of a folder in order; none for a folder that is not there.
inline std::vector<std::filesystem::path> filesIn(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> files;
    if (!std::filesystem::exists(folder)) return files;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.is_regular_file()) files.push_back(entry.path());
    std::ranges::sort(files);
    return files;
}

/// What the fuzzing of a target starts from, and what it has found.
inline std::vector<std::filesystem::path> corpusOf(const std::string& target) {
    return filesIn(std::filesystem::path(TESSAPLOT_FUZZ_FOLDER) / "corpus" / target);
}
inline std::vector<std::filesystem::path> regressionsOf(const std::string& target) {
    return filesIn(std::filesystem::path(TESSAPLOT_FUZZ_FOLDER) / "regressions" / target);
}

inline std::vector<std::string> bytesOf(const std::vector<std::filesystem::path>& files) {
    std::vector<std::string> inputs;
    inputs.reserve(files.size());
    for (const std::filesystem::path& file : files)
        inputs.push_back(bytesOf(file));
    return inputs;
}

}  // namespace tessaplot::fuzz

#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tessaplot::cli {

/// Each command throws base::Failure if it cannot be done.
void importData(const std::filesystem::path& text, const std::filesystem::path& document);
void exportData(const std::filesystem::path& document, const std::filesystem::path& text);
/// `method` is 1 to 5 or 101 to 103; none takes the document's own.
void gridData(const std::filesystem::path& document, const std::filesystem::path& text, std::optional<int> method);

struct EvalOptions {
    std::string formula;
    bool degrees = false;
    std::vector<std::string> variables;  ///< "X=1.5" and so on.
};

/// Prints the postfix text and the value; false, with the message on standard error, for a faulty formula.
bool evaluate(const EvalOptions& options);

}  // namespace tessaplot::cli

#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "core/document.h"

namespace tessaplot::cli {

/// The document at `path`. Throws base::Failure if it cannot be read or is none.
core::Document readKnownDocument(const std::filesystem::path& path);

struct RenderOptions {
    std::vector<std::filesystem::path> documents;
    std::string picture;  ///< A path; "{}" in it stands for the name of the document without folder and extension.
    int width = 1000;
    int height = 800;
    std::string view;  ///< "iso", "front", "right", "top", or empty for the document's own.
    bool quick = false;
};

struct TraceOptions {
    std::filesystem::path document;
    int graph = 0;  ///< 1-based number of the shown graph to tell alone, 0 for none.
    bool frame = false;
    bool legend = false;
};

/// Draws each document into a picture of its own, and ends the process. One that cannot be drawn is told, and the
/// others are drawn all the same; the status is 1 then. Throws base::Failure without OpenGL.
[[noreturn]] void render(const RenderOptions& options);

/// Each command prints its result on standard output and throws base::Failure if it cannot be done.
void trace(const TraceOptions& options);
void info(const std::filesystem::path& document);
void convert(const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace tessaplot::cli

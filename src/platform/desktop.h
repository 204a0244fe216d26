#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/failure.h"

namespace tessaplot::platform {

enum class Icon { None, Warning, Error };
enum class Buttons { Ok, YesNo, YesNoCancel };
enum class Answer { Ok, Yes, No, Cancel };

struct Message {
    std::string title;
    std::string text;
    Icon icon = Icon::None;
    Buttons buttons = Buttons::Ok;
};

struct FileQuestion {
    enum class Mode { Open, Save };
    Mode mode = Mode::Open;
    std::string title;
    std::string filter;  ///< Pairs of a description and a pattern, all separated by "|".
};

struct FileChoice {
    std::string path;
    int filterIndex = 1;  ///< 1-based entry of the filter.
};

/// A picture as it was read from a file: rows from the top down without padding, red, green and blue of each pixel.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> pixels;
};

/// What the logic asks of a desktop. Every member may stay empty: the defaults answer as a machine without a person
/// does (questions get Cancel, messages and progress go nowhere). Tests hand in scripted functions.
struct Desktop {
    std::function<Answer(const Message&)> ask;
    std::function<std::optional<FileChoice>(const FileQuestion&)> chooseFile;
    std::function<void(std::string_view)> showStatus;
    /// Repaints the picture from the compiled scene.
    std::function<void()> display;
    std::function<void()> closeWindow;
    /// Tells how far a long task is, from 0 to 1, and lets pending events run; false asks the task to stop.
    std::function<bool(double)> reportProgress;
    std::function<void()> registerFileType;
    /// Reads a BMP, JPG or GIF file. Throws FileUnreadable with the reason.
    std::function<Picture(const std::filesystem::path&)> loadPicture;

    Answer askUser(const Message& message) const;
    std::optional<FileChoice> chooseFileName(const FileQuestion& question) const;
    void status(std::string_view text) const;
    void displayPicture() const;
    /// Throws Cancelled once the user asked to stop.
    void progress(double share) const;
    /// `loadPicture`; without one every file is unreadable.
    Picture readPicture(const std::filesystem::path& path) const;
};

}  // namespace tessaplot::platform

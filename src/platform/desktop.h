#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/color.h"
#include "base/failure.h"

namespace tessaplot::platform {

enum class Icon { None, Warning, Error };
enum class Buttons { Ok, YesNo, YesNoCancel };
enum class Answer { Ok, Yes, No, Cancel };

/// What a box says, and the buttons that it offers.
struct Message {
    std::string title;
    std::string text;
    Icon icon = Icon::None;
    Buttons buttons = Buttons::Ok;
};

/// What a file dialog asks for.
struct FileQuestion {
    enum class Mode { Open, Save };
    Mode mode = Mode::Open;
    std::string title;
    std::string filter;  ///< Pairs of a description and a pattern, all separated by "|".
};

/// What the user chose in a file dialog.
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

/// A typeface as a font dialog gives it.
struct FontChoice {
    std::string name;
    double size = 0;  ///< Points.
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeout = false;
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
    /// Ask for a colour or a typeface, starting from the present one; nothing if the user cancelled.
    std::function<std::optional<base::PackedColor>(base::PackedColor)> chooseColor;
    std::function<std::optional<FontChoice>(const FontChoice&)> chooseFont;
    std::function<void(std::string_view)> setClipboardText;
    std::function<std::string()> clipboardText;
    /// Put a bitmap file on the clipboard as a picture, or on a printer page from the origin in its own size.
    std::function<void(const std::filesystem::path&)> copyPictureFile;
    std::function<void(const std::filesystem::path&)> printPictureFile;
    /// Opens a web page or a file of the help in the user's browser.
    std::function<void(std::string_view)> openPage;
    /// Lets pending events run.
    std::function<void()> doEvents;
    /// Reads the frame buffer from its lower left corner as RGB bytes, bottom row first, rows padded to 4 bytes;
    /// columns beyond the surface hold anything. Throws Failure without a surface.
    std::function<std::vector<std::uint8_t>(int width, int height)> readFrame;
    /// Shows a popup menu at the pointer, by its name in the menu table.
    std::function<void(std::string_view)> popUpMenu;

    /// Each of these asks the member of its kind, or answers for a desktop that has none.
    Answer askUser(const Message& message) const;
    std::optional<FileChoice> chooseFileName(const FileQuestion& question) const;
    void status(std::string_view text) const;
    void displayPicture() const;
    /// Throws Cancelled once the user asked to stop.
    void progress(double share) const;
    /// `loadPicture`; without one every file is unreadable.
    Picture readPicture(const std::filesystem::path& path) const;
    std::optional<base::PackedColor> pickColor(base::PackedColor present) const;
    std::optional<FontChoice> pickFont(const FontChoice& present) const;
    void copyText(std::string_view text) const;
    /// The text on the clipboard, empty if there is none.
    std::string copiedText() const;
    void copyPicture(const std::filesystem::path& path) const;
    void printPicture(const std::filesystem::path& path) const;
    void showPage(std::string_view address) const;
    void runPendingEvents() const;
    /// `readFrame`; without one there is no picture, which throws OpenGl.
    std::vector<std::uint8_t> frame(int width, int height) const;
    void showPopUp(std::string_view menu) const;
};

}  // namespace tessaplot::platform

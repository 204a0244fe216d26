#include "platform/desktop.h"

namespace tessaplot::platform {

Answer Desktop::askUser(const Message& message) const {
    if (ask) return ask(message);
    return message.buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel;
}

std::optional<FileChoice> Desktop::chooseFileName(const FileQuestion& question) const {
    return chooseFile ? chooseFile(question) : std::nullopt;
}

void Desktop::status(std::string_view text) const {
    if (showStatus) showStatus(text);
}

void Desktop::displayPicture() const {
    if (display) display();
}

void Desktop::progress(double share) const {
    if (reportProgress && !reportProgress(share)) throw base::Failure(base::FailureCode::Cancelled, "Cancelled.");
}

Picture Desktop::readPicture(const std::filesystem::path& path) const {
    if (loadPicture) return loadPicture(path);
    throw base::Failure(base::FailureCode::FileUnreadable,
                        "The picture \"" + path.string() + "\" cannot be read: there is no reader for it.");
}

std::optional<base::PackedColor> Desktop::pickColor(base::PackedColor present) const {
    return chooseColor ? chooseColor(present) : std::nullopt;
}

std::optional<FontChoice> Desktop::pickFont(const FontChoice& present) const {
    return chooseFont ? chooseFont(present) : std::nullopt;
}

void Desktop::copyText(std::string_view text) const {
    if (setClipboardText) setClipboardText(text);
}

std::string Desktop::copiedText() const {
    return clipboardText ? clipboardText() : std::string();
}

void Desktop::copyPicture(const std::filesystem::path& path) const {
    if (copyPictureFile) copyPictureFile(path);
}

void Desktop::printPicture(const std::filesystem::path& path) const {
    if (printPictureFile) printPictureFile(path);
}

void Desktop::showPage(std::string_view address) const {
    if (openPage) openPage(address);
}

void Desktop::runPendingEvents() const {
    if (doEvents) doEvents();
}

std::vector<std::uint8_t> Desktop::frame(int width, int height) const {
    if (readFrame) return readFrame(width, height);
    throw base::Failure(base::FailureCode::OpenGl, "There is no picture to read.");
}

void Desktop::showPopUp(std::string_view menu) const {
    if (popUpMenu) popUpMenu(menu);
}

}  // namespace tessaplot::platform

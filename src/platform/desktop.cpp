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

}  // namespace tessaplot::platform

#include "qt/last_resort.h"

#include <QCoreApplication>
#include <QFile>
#include <QMetaObject>
#include <QStandardPaths>
#include <exception>
#include <utility>

namespace tessaplot::qt {

LastResort::LastResort(ui::frmF1& form, std::filesystem::path recoveryFolder)
    : form_(form), recoveryFolder_(std::move(recoveryFolder)) {}

void LastResort::take(const char* message) noexcept {
    if (std::exchange(taken_, true)) return;
    try {
        QMetaObject::invokeMethod(
            this, [this, text = std::string(message), recovery = keepWork()] { tellAndEnd(text, recovery); },
            Qt::QueuedConnection);
    } catch (...) {
        QCoreApplication::exit(1);
    }
}

std::filesystem::path LastResort::keepWork() const {
    return form_.saveRecovery(recoveryFolder_);
}

void LastResort::tellAndEnd(const std::string& message, const std::filesystem::path& recovery) {
    const std::string kept = recovery.empty() ? "What was open could not be kept."
                                              : "What was open is kept in the document\n" + recovery.string();
    try {
        const std::string text = message + "\n\nTessaplot has to end. " + kept;
        form_.state().desktop.askUser({"Tessaplot", text, platform::Icon::Error, platform::Buttons::Ok});
    } catch (const std::exception&) {
        // Nothing is left that could tell of it.
    }
    ended_ = true;
    QCoreApplication::exit(1);
}

std::filesystem::path userDataFolder() {
    return QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)).toStdString();
}

}  // namespace tessaplot::qt

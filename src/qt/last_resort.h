#pragma once

#include <QObject>
#include <filesystem>
#include <string>

#include "ui/main_window.h"

namespace tessaplot::qt {

/// What becomes of a failure outside any command: the work is kept, the person is told, the program ends with status 1.
class LastResort : public QObject {
 public:
    LastResort(ui::frmF1& form, std::filesystem::path recoveryFolder);

    /// Takes the first failure; those that follow while the program ends are dropped. Returns at once: the box waits
    /// for the event loop, since the failure may come from the midst of a paint.
    void take(const char* message) noexcept;

    bool taken() const { return taken_; }
    /// The person was told; only the return from `main` is left.
    bool ended() const { return ended_; }

 private:
    std::filesystem::path keepWork() const;
    void tellAndEnd(const std::string& message, const std::filesystem::path& recovery);

    ui::frmF1& form_;
    std::filesystem::path recoveryFolder_;
    bool taken_ = false;
    bool ended_ = false;
};

/// The folder of the user's own data of this program.
std::filesystem::path userDataFolder();

}  // namespace tessaplot::qt

#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>

#include "base/failure.h"
#include "base/number_text.h"
#include "core/save_bitmap.h"
#include "ui/main_window.h"

namespace tessaplot::ui {

namespace {

namespace fs = std::filesystem;

/// A folder that only this user can enter; it goes with all that is in it.
class PrivateFolder {
 public:
    PrivateFolder() : path_((fs::temp_directory_path() / "tessaplot-XXXXXX").string()) {
        if (::mkdtemp(path_.data()) == nullptr)
            throw base::Failure(
                base::FailureCode::FileUnwritable,
                "There is no room for a picture: " + std::error_code(errno, std::generic_category()).message() + ".");
    }
    ~PrivateFolder() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }
    PrivateFolder(const PrivateFolder&) = delete;
    PrivateFolder& operator=(const PrivateFolder&) = delete;

    fs::path file(const char* name) const { return fs::path(path_) / name; }

 private:
    std::string path_;
};

void saveSurface(const core::AppState& state, const fs::path& path) {
    core::SaveBitmap(state.desktop, path, base::roundToInteger(state.TheView.ScreenWidth),
                     base::roundToInteger(state.TheView.ScreenHeight));
}

/// Hands the picture on as a bitmap file that is gone afterwards.
template <class Hand>
void handOver(const core::AppState& state, Hand&& hand) {
    const PrivateFolder folder;
    const fs::path path = folder.file("temp.bmp");
    saveSurface(state, path);
    hand(path);
}

}  // namespace

void frmF1::mnuEditCopyAs_Click() {
    if (state_.AllGraphs.empty()) return state_.desktop.status("There is no graph to copy.");
    handOver(state_, [this](const fs::path& path) { state_.desktop.copyPicture(path); });
}

void frmF1::mnuFilePrint_Click() {
    state_.desktop.displayPicture();
    handOver(state_, [this](const fs::path& path) { state_.desktop.printPicture(path); });
}

void frmF1::savePictureAs(const fs::path& path) {
    save(path, [&] {
        state_.desktop.runPendingEvents();
        saveSurface(state_, path);
    });
}

}  // namespace tessaplot::ui

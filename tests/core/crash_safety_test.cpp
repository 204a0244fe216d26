#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <iterator>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "base/failure.h"
#include "base/files.h"
#include "core/document.h"
#include "core/example_state.h"
#include "ui/main_window.h"

namespace tessaplot::core {
namespace {

namespace fs = std::filesystem;

enum class Fault { DieBefore, DieHalfway, DieAfter, Fail, ShortAndInterrupted, FolderVanishes };

/// What is to happen at one of the calls by which a save changes the disk, counted from 1.
struct Plan {
    Fault fault = Fault::Fail;
    std::size_t at = 0;  ///< 0 for none of them.
    int error = ENOSPC;
    fs::path folder = {};
};

constexpr int killed = 77;

std::optional<Plan> plan;
std::vector<std::string> calls;

/// Runs a call, or does what the plan says; `part` is the share of a write that comes through.
long disturb(const char* name, const std::function<long()>& call, const std::function<long()>& part = {}) {
    if (!plan) return call();
    calls.emplace_back(name);
    const bool interruptedNow = plan->fault == Fault::ShortAndInterrupted && part;
    if (interruptedNow && calls.size() % 2 == 0) return part();
    if (interruptedNow) {
        errno = EINTR;
        return -1;
    }
    if (calls.size() != plan->at) return call();
    if (plan->fault == Fault::FolderVanishes) {
        fs::remove_all(plan->folder);
        return call();
    }
    if (plan->fault == Fault::DieAfter) call();
    if (part && plan->fault != Fault::DieBefore && plan->fault != Fault::DieAfter) part();
    if (plan->fault != Fault::Fail) _exit(killed);
    errno = plan->error;
    return -1;
}

}  // namespace
}  // namespace tessaplot::core

// The linker sends these calls of the program here; the names are its own.
// NOLINTBEGIN
extern "C" {
int __real_mkstemp(char* name);
ssize_t __real_write(int file, const void* bytes, size_t size);
int __real_fchmod(int file, mode_t mode);
int __real_fsync(int file);
int __real_close(int file);
int __real_rename(const char* from, const char* to);

int __wrap_mkstemp(char* name) {
    return static_cast<int>(tessaplot::core::disturb("mkstemp", [&] { return __real_mkstemp(name); }));
}
ssize_t __wrap_write(int file, const void* bytes, size_t size) {
    return tessaplot::core::disturb(
        "write", [&] { return __real_write(file, bytes, size); },
        [&] { return __real_write(file, bytes, (size + 1) / 2); });
}
int __wrap_fchmod(int file, mode_t mode) {
    return static_cast<int>(tessaplot::core::disturb("fchmod", [&] { return __real_fchmod(file, mode); }));
}
int __wrap_fsync(int file) {
    return static_cast<int>(tessaplot::core::disturb("fsync", [&] { return __real_fsync(file); }));
}
int __wrap_close(int file) {
    return static_cast<int>(tessaplot::core::disturb("close", [&] { return __real_close(file); }));
}
int __wrap_rename(const char* from, const char* to) {
    return static_cast<int>(tessaplot::core::disturb("rename", [&] { return __real_rename(from, to); }));
}
}
// NOLINTEND

namespace tessaplot::core {
namespace {

/// Runs `save` in a process of its own that the plan may end. What it ended with: 0 for a save, 1 for a refusal.
int inAnotherProcess(const std::optional<Plan>& planned, const std::function<void()>& save) {
    const pid_t child = fork();
    if (child == 0) {
        plan = planned;
        calls.clear();
        try {
            save();
        } catch (const base::Failure&) {
            _exit(1);
        }
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class CrashSafety : public testing::Test {
 protected:
    void SetUp() override {
        fillPanel(state.panel, data::DataKind::RegularSurface);
        addGraph(state, graphs::graph_type::gridModel);
        state.TheAxis.TitleX = std::string(70000, 'x');
        longText = documentText(partsOf(state, state.AllGraphs));
        state.TheAxis.TitleX = "short";
        shortText = documentText(partsOf(state, state.AllGraphs));
    }
    void TearDown() override { plan.reset(); }

    /// The bytes of the file, with this text or not there at all.
    std::string startWith(const std::string& text) {
        fs::remove(path);
        if (!text.empty()) writeDocumentFile(path, text);
        return bytesOf(path);
    }
    std::ptrdiff_t files() const { return std::distance(fs::directory_iterator(folder), {}); }
    /// What a process of its own ends with that saves, at one of its calls disturbed.
    int saved(const std::string& text, const std::optional<Plan>& planned = {}) const {
        return inAnotherProcess(planned, [&] { writeDocumentFile(path, text); });
    }

    /// Saves in this process, which notes its calls.
    void saveHere(const Plan& planned) {
        plan = planned;
        calls.clear();
        writeDocumentFile(path, longText);
        plan.reset();
    }

    /// Saves with `fault` at every call in turn and holds what is left against the old file and the new one.
    void disturbEveryCall(Fault fault, const std::string& before, const std::string& after) {
        startWith(before);
        writeDocumentFile(path, after);
        const std::string whole = bytesOf(path);
        for (std::size_t at = 1;; ++at) {
            const std::string old = startWith(before);
            const int ended = saved(after, Plan{fault, at});
            const std::string left = bytesOf(path);
            ASSERT_TRUE(left == old || left == whole) << "a mixture is left by the call " << at;
            EXPECT_TRUE(ended != 0 || left == whole) << "a save that tells of no failure has happened";
            if (ended == 0) break;
            ASSERT_EQ(ended, fault == Fault::Fail ? 1 : killed);
            EXPECT_TRUE(fault != Fault::Fail || files() == (before.empty() ? 0 : 1)) << at;
            ASSERT_LT(at, 50U);
            outcomes.insert(left == whole ? "new" : "old");
        }
    }

    AppState state;
    std::string longText;
    std::string shortText;
    TemporaryFolder folder;
    fs::path path = folder / "kept.tsp";
    std::set<std::string> outcomes;
};

TEST_F(CrashSafety, aProcessKilledAtAnyCallOfASaveLeavesTheOldOrTheNewDocument) {
    for (const Fault fault : {Fault::DieBefore, Fault::DieHalfway, Fault::DieAfter}) {
        disturbEveryCall(fault, "", longText);
        disturbEveryCall(fault, shortText, longText);
        disturbEveryCall(fault, longText, shortText);
    }
    EXPECT_EQ(outcomes, (std::set<std::string>{"new", "old"}));
    EXPECT_EQ(readDocumentFile(path), shortText);
}

TEST_F(CrashSafety, anyCallThatFailsIsToldAndLeavesTheOldDocumentAndNothingBesideIt) {
    disturbEveryCall(Fault::Fail, "", longText);
    disturbEveryCall(Fault::Fail, longText, shortText);
    EXPECT_EQ(outcomes, std::set<std::string>{"old"});
}

TEST_F(CrashSafety, bytesAreOnTheDiskBeforeTheyTakeThePlaceOfTheOld) {
    saveHere({});
    const auto lastWrite = std::find(calls.rbegin(), calls.rend(), "write").base();
    const auto sync = std::find(lastWrite, calls.end(), "fsync");
    EXPECT_NE(std::find(sync, calls.end(), "rename"), calls.end()) << testing::PrintToString(calls);
}

TEST_F(CrashSafety, shortAndInterruptedWritesGoOn) {
    saveHere({Fault::ShortAndInterrupted});
    EXPECT_EQ(readDocumentFile(path), longText);
    EXPECT_GT(std::count(calls.begin(), calls.end(), "write"), 10);
}

TEST_F(CrashSafety, aFolderThatVanishesDuringASaveIsTold) {
    for (std::size_t at = 1; at < 50; ++at) {
        fs::create_directories(folder);
        const int ended = saved(longText, Plan{Fault::FolderVanishes, at, 0, folder});
        if (ended == 0) {
            EXPECT_EQ(readDocumentFile(path), longText);
            return;
        }
        EXPECT_EQ(ended, 1) << at;
    }
    FAIL() << "nothing was saved";
}

TEST_F(CrashSafety, aReadOnlyFolderKeepsItsDocument) {
    const std::string old = startWith(shortText);
    fs::permissions(path, fs::perms::all);
    fs::permissions(folder, fs::perms{0555});
    constexpr uid_t nobody = 65534;
    const int ended = inAnotherProcess({}, [&] {
        if (geteuid() == 0 && setuid(nobody) != 0) return;
        writeDocumentFile(path, longText);
    });
    fs::permissions(folder, fs::perms::owner_all);
    EXPECT_EQ(ended, 1);
    EXPECT_EQ(bytesOf(path), old);
}

TEST_F(CrashSafety, aFullDiskKeepsItsDocument) {
    const fs::path& where = folder;
    if (mount("tmpfs", where.c_str(), "tmpfs", 0, "size=64k") != 0)
        GTEST_SKIP() << "a disk of its own takes a system administrator";
    const std::string old = startWith(shortText);
    EXPECT_EQ(saved(longText), 1);
    EXPECT_EQ(bytesOf(path), old);
    EXPECT_EQ(files(), 1) << "what did not fit is removed";
    umount(where.c_str());
}

TEST_F(CrashSafety, aRecoveryDocumentIsWholeOrNotThereAndOpensAgain) {
    showGridModel(state);
    const ui::frmF1 window(state);
    for (std::size_t at = 1; at < 50; ++at) {
        const int ended = inAnotherProcess(Plan{Fault::DieHalfway, at}, [&] { window.saveRecovery(folder); });
        for (const auto& entry : fs::directory_iterator(folder)) {
            if (entry.path().extension() != ".tsp") continue;
            AppState opened;
            EXPECT_EQ(LoadDocument(opened, entry.path()), LoadResult::Loaded);
            EXPECT_EQ(opened.ShownGraphs.Graphs.size(), 2U);
            if (ended == 0) return;
        }
        ASSERT_EQ(ended, killed);
    }
    FAIL() << "no recovery document was written";
}

}  // namespace
}  // namespace tessaplot::core

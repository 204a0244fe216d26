#include "numerics/parallel_pieces.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <exception>
#include <mutex>

#include "numerics/helper_threads.h"

namespace tessaplot::numerics {

namespace {

using Clock = std::chrono::steady_clock;

/// The pieces that are left, handed out to whichever thread asks.
class Pieces {
 public:
    Pieces(std::size_t count, std::size_t pieceSize, const std::function<void(std::size_t, std::size_t)>& work)
        : count_(count), pieceSize_(pieceSize), work_(work) {}

    /// Works on one piece; false if none is left or a thread has failed.
    bool runOne() {
        if (stopped_) return false;
        const std::size_t first = next_.fetch_add(pieceSize_);
        if (first >= count_) return false;
        work_(first, std::min(first + pieceSize_, count_));
        return true;
    }

    void runAll() {
        try {
            while (runOne()) {
            }
        } catch (...) {
            stop();
            const std::scoped_lock lock(mutex_);
            if (!thrown_) thrown_ = std::current_exception();
        }
    }

    void stop() { stopped_ = true; }
    double handedOut() const {
        return static_cast<double>(std::min(next_.load(), count_)) / static_cast<double>(count_);
    }
    std::size_t pieceCount() const { return (count_ + pieceSize_ - 1) / pieceSize_; }

    /// Only when the other threads have left the work.
    void rethrow() const {
        if (thrown_) std::rethrow_exception(thrown_);
    }

 private:
    std::size_t count_;
    std::size_t pieceSize_;
    const std::function<void(std::size_t, std::size_t)>& work_;
    std::atomic<std::size_t> next_ = 0;
    std::atomic<bool> stopped_ = false;
    std::mutex mutex_;
    std::exception_ptr thrown_;
};

/// Works on pieces in the calling thread and tells the progress in between.
void runWithProgress(Pieces& pieces, const Progress& progress) {
    constexpr auto pause = std::chrono::milliseconds(20);
    Clock::time_point due = Clock::now() + pause;
    while (pieces.runOne()) {
        if (!progress || Clock::now() < due) continue;
        progress(pieces.handedOut());
        due = Clock::now() + pause;
    }
}

}  // namespace

Progress partOf(const Progress& whole, double from, double to) {
    if (!whole) return {};
    return [&whole, from, to](double done) { whole(from + (to - from) * done); };
}

void forEachPiece(std::size_t count, std::size_t pieceSize, const std::function<void(std::size_t, std::size_t)>& work,
                  const Progress& progress) {
    if (count == 0) return;
    Pieces pieces(count, pieceSize, work);
    {
        const HelperThreads::Help help(pieces.pieceCount() - 1, [&pieces] { pieces.runAll(); });
        try {
            runWithProgress(pieces, progress);
        } catch (...) {
            pieces.stop();
            throw;
        }
    }
    pieces.rethrow();
    if (progress) progress(1);
}

}  // namespace tessaplot::numerics

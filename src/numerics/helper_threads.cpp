#include "numerics/helper_threads.h"

#include <algorithm>
#include <system_error>
#include <utility>

#ifdef __GLIBC__
#include <pthread.h>
#include <sched.h>
#endif

namespace tessaplot::numerics {

HelperThreads& HelperThreads::ofProcess() {
    static HelperThreads threads;
    return threads;
}

HelperThreads::HelperThreads() {
    const std::size_t cores = std::max(1U, std::thread::hardware_concurrency());
    threads_.reserve(cores - 1);
    try {
        while (threads_.size() + 1 < cores)
            threads_.emplace_back([this](const std::stop_token& end) { serve(end); });
    } catch (const std::system_error&) {
        return;  // Those that there are have to do.
    }
}

#ifdef __GLIBC__

void HelperThreads::keepOffThisCore() {
    cpu_set_t cores;
    const int here = sched_getcpu();
    const bool isHelper = std::ranges::any_of(
        threads_, [](const std::jthread& thread) { return thread.get_id() == std::this_thread::get_id(); });
    if (isHelper || here < 0 || sched_getaffinity(0, sizeof cores, &cores) != 0) return;
    CPU_CLR(static_cast<std::size_t>(here), &cores);
    if (CPU_COUNT(&cores) == 0) return;
    for (std::jthread& thread : threads_)
        pthread_setaffinity_np(thread.native_handle(), sizeof cores, &cores);
}

#else

void HelperThreads::keepOffThisCore() {}

#endif

void HelperThreads::serve(const std::stop_token& end) {
    std::unique_lock lock(mutex_);
    while (asked_.wait(lock, end, [this] { return !open_.empty(); })) {
        Help& help = *open_.front();
        ++help.joined_;
        if (--help.wanted_ == 0) open_.pop_front();
        lock.unlock();
        help.work_();
        lock.lock();
        if (--help.joined_ == 0) left_.notify_all();
    }
}

HelperThreads::Help::Help(std::size_t helpers, std::function<void()> work)
    : wanted_(std::min(helpers, ofProcess().count())), work_(std::move(work)) {
    if (wanted_ == 0) return;
    HelperThreads& threads = ofProcess();
    const std::scoped_lock lock(threads.mutex_);
    threads.open_.push_back(this);
    threads.keepOffThisCore();
    threads.asked_.notify_all();
}

HelperThreads::Help::~Help() {
    HelperThreads& threads = ofProcess();
    std::unique_lock lock(threads.mutex_);
    std::erase(threads.open_, this);
    threads.left_.wait(lock, [this] { return joined_ == 0; });
}

}  // namespace tessaplot::numerics

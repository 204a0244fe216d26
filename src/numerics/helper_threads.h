#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <stop_token>
#include <thread>
#include <vector>

namespace tessaplot::numerics {

/// Threads that help where work is done: one less than there are cores, fewer where the system refuses them. They are
/// kept from work to work and begin on other cores than the one that asks: small virtual machines put new and woken
/// threads there, where they wait for milliseconds until the load is spread.
class HelperThreads {
 public:
    /// Those of the process, made at the first call.
    static HelperThreads& ofProcess();

    /// Work that helpers join from now on, until this ends; its end waits for those that joined.
    class Help {
     public:
        /// At most `helpers` call `work`, which must not throw, each of them once or more.
        Help(std::size_t helpers, std::function<void()> work);
        ~Help();
        Help(const Help&) = delete;
        Help& operator=(const Help&) = delete;

     private:
        friend class HelperThreads;

        std::size_t wanted_;
        std::size_t joined_ = 0;
        std::function<void()> work_;
    };

    std::size_t count() const { return threads_.size(); }

 private:
    HelperThreads();
    void serve(const std::stop_token& end);
    void keepOffThisCore();

    std::mutex mutex_;
    std::condition_variable_any asked_;
    std::condition_variable_any left_;
    std::deque<Help*> open_;
    std::vector<std::jthread> threads_;  ///< The last member, so that they end before what they use.
};

}  // namespace tessaplot::numerics

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <thread>
#include <vector>

#include <benchmark/benchmark.h>
#include <sys/mman.h>

// What this machine can do at best in the things that the numeric work is made of, on one thread and on all of them.
// docs/performance.md holds the times of the work against it.

namespace tessaplot {
namespace {

// The widest registers of the processor, as in the kernels of the gridding; narrower ones take several steps.
#if defined(__x86_64__) && !defined(__clang__)
#define WIDEST_REGISTERS __attribute__((target_clones("avx512f", "avx2", "default")))
#else
#define WIDEST_REGISTERS
#endif

constexpr std::size_t chunk = 1024;  ///< Numbers that stay in the first cache.
using Chunk = std::array<double, chunk>;

Chunk someNumbers() {
    Chunk numbers;
    for (std::size_t i = 0; i < chunk; ++i)
        numbers[i] = 1 + static_cast<double>(i) / chunk;
    return numbers;
}

WIDEST_REGISTERS void divide(const Chunk& from, Chunk& to, double dividend) {
    for (std::size_t i = 0; i < chunk; ++i)
        to[i] = dividend / from[i];
}

WIDEST_REGISTERS void takeRoots(const Chunk& from, Chunk& to, double) {
    for (std::size_t i = 0; i < chunk; ++i)
        to[i] = std::sqrt(from[i]);
}

void takeExponentials(const Chunk& from, Chunk& to, double) {
    std::transform(from.begin(), from.end(), to.begin(), [](double x) { return std::exp(x); });
}

void takeLogarithms(const Chunk& from, Chunk& to, double) {
    std::transform(from.begin(), from.end(), to.begin(), [](double x) { return std::log(x); });
}

void arithmetic(benchmark::State& state, void (*operation)(const Chunk&, Chunk&, double)) {
    const Chunk from = someNumbers();
    Chunk to;
    for (auto _ : state) {
        operation(from, to, 3);
        benchmark::DoNotOptimize(to.data());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * chunk));
}

constexpr std::size_t large = std::size_t{64} << 20;  ///< Bytes, beyond most caches.

/// Counts what is read and what is written.
void copyMemory(benchmark::State& state) {
    const std::vector<char> from(large, 1);
    std::vector<char> to(large);
    for (auto _ : state) {
        std::memcpy(to.data(), from.data(), large);
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * 2 * large));
}

/// Pages that a program touches for the first time, given back in between; an item is a page of 4 KiB.
void firstTouch(benchmark::State& state) {
    constexpr std::size_t page = 4096;
    constexpr std::size_t bytes = std::size_t{4} << 20;
    for (auto _ : state) {
        void* mapped = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (mapped == MAP_FAILED) return state.SkipWithError("no memory");
        for (std::size_t at = 0; at < bytes; at += page)
            static_cast<volatile char*>(mapped)[at] = 1;
        munmap(mapped, bytes);
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * (bytes / page)));
}

/// Reads one number of each cache line of a large array, in an order that no prefetcher foresees; each read can start
/// before the one before is done.
void scatteredReads(benchmark::State& state) {
    constexpr std::size_t lineNumbers = 8;
    constexpr std::size_t lines = large / (lineNumbers * sizeof(double));
    const std::vector<double> numbers(lines * lineNumbers, 1);
    std::size_t line = 1;
    for (auto _ : state) {
        double sum = 0;
        for (std::size_t i = 0; i < chunk; ++i) {
            line = (line * 5 + 12345) % lines;  // Full period: the modulus is a power of two.
            sum += numbers[line * lineNumbers];
        }
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * chunk));
}

[[maybe_unused]] const bool registered = [] {
    const auto add = [](benchmark::internal::Benchmark* measured) {
        measured->UseRealTime()->Threads(1);
        const auto all = static_cast<int>(std::thread::hardware_concurrency());
        if (all > 1) measured->Threads(all);
    };
    add(benchmark::RegisterBenchmark("divisions", arithmetic, divide));
    add(benchmark::RegisterBenchmark("square roots", arithmetic, takeRoots));
    add(benchmark::RegisterBenchmark("exp", arithmetic, takeExponentials));
    add(benchmark::RegisterBenchmark("log", arithmetic, takeLogarithms));
    add(benchmark::RegisterBenchmark("copy", copyMemory));
    add(benchmark::RegisterBenchmark("scattered reads", scatteredReads));
    add(benchmark::RegisterBenchmark("first touch of a page", firstTouch));
    return true;
}();

}  // namespace
}  // namespace tessaplot

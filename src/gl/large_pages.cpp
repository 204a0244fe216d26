#include "gl/large_pages.h"

#include <cstdint>
#include <cstdlib>

#ifdef __GLIBC__
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>
#endif

namespace tessaplot::gl {

#ifdef __GLIBC__

namespace {

constexpr int mebibyte = 1 << 20;
/// More than a picture of common size takes with its samples, and the document.
constexpr int heapStep = 128 * mebibyte;
/// Larger blocks come from the system one by one, smaller ones from the heap.
constexpr int largestOnHeap = 32 * mebibyte;
constexpr std::uintptr_t largePage = 2 * mebibyte;

/// Makes the heap grow by a whole step.
void growHeap() {
    void* volatile block = std::malloc(mebibyte);
    std::free(block);
}

}  // namespace

void preferLargePages() {
    mallopt(M_MMAP_THRESHOLD, largestOnHeap);
    mallopt(M_TRIM_THRESHOLD, 2 * heapStep);
    mallopt(M_TOP_PAD, heapStep);
    mallopt(M_ARENA_MAX, 1);  // A heap for each thread would grow by as much.
    growHeap();
    const auto end = reinterpret_cast<std::uintptr_t>(sbrk(0));
    const std::uintptr_t begin = (end - heapStep + largePage - 1) / largePage * largePage;
    if (begin < end) madvise(reinterpret_cast<void*>(begin), end - begin, MADV_HUGEPAGE);
}

#else

void preferLargePages() {}

#endif

}  // namespace tessaplot::gl

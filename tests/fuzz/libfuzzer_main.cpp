#include <cstddef>
#include <cstdint>

#include "fuzz/targets.h"

/// Called by libFuzzer; the build names the target.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    tessaplot::fuzz::TESSAPLOT_FUZZ_TARGET({reinterpret_cast<const char*>(bytes), size});
    return 0;
}

#include "numerics/vector_kernels.h"

#include <array>
#include <cmath>

// The stretches for one kind of processor are marked by pragmas that only GCC knows.
#if defined(__x86_64__) && !defined(__clang__)
#define SEVERAL_PROCESSORS 1
#include <immintrin.h>
#else
#define SEVERAL_PROCESSORS 0
#endif

// A set of kernels is compiled for each kind of processor, and the first use picks the best that runs here.

namespace tessaplot::numerics {

#if SEVERAL_PROCESSORS

#pragma GCC push_options
#pragma GCC target("avx512f,prefer-vector-width=512")
namespace wide {
#define LANES_NAME "AVX-512"
#define LANE_BYTES 64
#define LANES_HAVE_FMA 1
#define LANES_FMA(a, b, c) _mm512_fmadd_pd(a, b, c)
#define LANES_FNMA(a, b, c) _mm512_fnmadd_pd(a, b, c)
#define LANES_SQRT(a) _mm512_maskz_sqrt_pd(0xff, a)
#include "numerics/vector_kernels.inc"
#undef LANES_NAME
#undef LANE_BYTES
#undef LANES_HAVE_FMA
#undef LANES_FMA
#undef LANES_FNMA
#undef LANES_SQRT
}  // namespace wide
#pragma GCC pop_options

#pragma GCC push_options
#pragma GCC target("avx2,fma")
namespace medium {
#define LANES_NAME "AVX2"
#define LANE_BYTES 32
#define LANES_HAVE_FMA 1
#define LANES_FMA(a, b, c) _mm256_fmadd_pd(a, b, c)
#define LANES_FNMA(a, b, c) _mm256_fnmadd_pd(a, b, c)
#define LANES_SQRT(a) _mm256_sqrt_pd(a)
#include "numerics/vector_kernels.inc"
#undef LANES_NAME
#undef LANE_BYTES
#undef LANES_HAVE_FMA
#undef LANES_FMA
#undef LANES_FNMA
#undef LANES_SQRT
}  // namespace medium
#pragma GCC pop_options

#endif

namespace {

using TwoDoubles = double __attribute__((vector_size(16)));

inline TwoDoubles sqrtOfTwo(TwoDoubles value) {
    return TwoDoubles{std::sqrt(value[0]), std::sqrt(value[1])};
}

}  // namespace

namespace plain {
#define LANES_NAME "baseline"
#define LANE_BYTES 16
#define LANES_HAVE_FMA 0
#define LANES_SQRT(a) sqrtOfTwo(a)
#include "numerics/vector_kernels.inc"
#undef LANES_NAME
#undef LANE_BYTES
#undef LANES_HAVE_FMA
#undef LANES_SQRT
}  // namespace plain

namespace {

struct Available {
    std::array<const KernelSet*, 3> sets{};
    std::size_t count = 0;

    Available() {
#if SEVERAL_PROCESSORS
        if (__builtin_cpu_supports("avx512f")) sets[count++] = &wide::set;
        if (__builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma")) sets[count++] = &medium::set;
#endif
        sets[count++] = &plain::set;
    }
};

const Available& available() {
    static const Available result;
    return result;
}

}  // namespace

std::span<const KernelSet* const> kernelSets() {
    return {available().sets.data(), available().count};
}

const KernelSet& kernels() {
    return *available().sets.front();
}

}  // namespace tessaplot::numerics

#pragma once

#include <cstdint>

namespace tessaplot::expr {

/// The pseudo-random numbers of a run: a 64-bit linear congruential sequence, of which the upper 24 bits are used
/// (multiplier and increment: D. E. Knuth, MMIX; The Art of Computer Programming, volume 2, section 3.3.4).
class RandomSequence {
 public:
    explicit RandomSequence(std::uint64_t seed = 1) : state_(seed) {}

    /// The next number, from 0 up to but not including 1.
    float next() {
        state_ = state_ * 6364136223846793005U + 1442695040888963407U;
        return static_cast<float>(state_ >> 40) * 0x1p-24F;
    }

 private:
    std::uint64_t state_;
};

}  // namespace tessaplot::expr

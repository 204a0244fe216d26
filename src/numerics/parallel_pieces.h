#pragma once

#include <cstddef>
#include <functional>

namespace tessaplot::numerics {

/// Told how much of a long work is done, from 0 to 1; it may throw to cancel the work.
using Progress = std::function<void(double)>;

/// Progress of a part of a work that reaches from `from` to `to` of the whole.
Progress partOf(const Progress& whole, double from, double to);

/// Runs `work(first, last)` for pieces of at most `pieceSize` of the range 0 to `count` on all cores, the calling
/// thread among them. `progress` is called by the calling thread alone, a few dozen times a second, and once with 1 at
/// the end. What `progress` or a piece throws is thrown to the caller, after all threads have left the work.
void forEachPiece(std::size_t count, std::size_t pieceSize, const std::function<void(std::size_t, std::size_t)>& work,
                  const Progress& progress);

}  // namespace tessaplot::numerics

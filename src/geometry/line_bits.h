#pragma once

#include <bit>
#include <cstdint>

namespace tessaplot::geometry {

/// A bit for each of up to 128 nodes, or cells, of a line along the first index of a volume.
__extension__ using LineBits = unsigned __int128;

/// Calls `visit` with the position of each set bit, in order.
template <class Visitor>
void forEachBit(LineBits bits, Visitor&& visit) {
    constexpr int half = 64;
    for (auto rest = static_cast<std::uint64_t>(bits); rest != 0; rest &= rest - 1)
        visit(std::countr_zero(rest));
    for (auto rest = static_cast<std::uint64_t>(bits >> half); rest != 0; rest &= rest - 1)
        visit(half + std::countr_zero(rest));
}

}  // namespace tessaplot::geometry

#include "geometry/contour_crossings.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "base/failure.h"

namespace tessaplot::geometry {

namespace {

/// The places of a block of nodes in one number.
std::uint64_t blockAt(const LevelPlace* places) {
    std::uint64_t block;
    static_assert(sizeof block == PlaceTable::block * sizeof *places);
    std::memcpy(&block, places, sizeof block);
    return block;
}

}  // namespace

PlaceTable::PlaceTable(int m, int n)
    : m_(m),
      n_(n),
      width_((static_cast<std::size_t>(n) / block + 1) * block),
      places_((static_cast<std::size_t>(m) + 1) * width_ + 1, noPlace) {}

std::vector<LevelCrossings::CrossedEdge> LevelCrossings::crossedEdges(const PlaceTable& places) {
    std::vector<CrossedEdge> crossed;
    const auto addIfCrossed = [&](GridEdge edge, LevelPlace one, LevelPlace other) {
        const auto [lower, higher] = std::minmax(one, other);
        if (higher == noPlace) return;
        const LevelSpan levels = levelsBetween(lower, higher);
        if (levels.first < levels.end) crossed.push_back({edge, levels});
    };
    for (int i = 1; i <= places.m(); ++i) {
        const LevelPlace* row = places.begin(i);
        const LevelPlace* nextRow = places.begin(i + 1);
        for (std::size_t start = 0; start < places.width(); start += PlaceTable::block) {
            const std::uint64_t here = blockAt(row + start);
            if (here == blockAt(row + start + 1) && here == blockAt(nextRow + start)) continue;
            for (std::size_t k = start; k < start + PlaceTable::block; ++k) {
                const auto node = static_cast<std::uint32_t>(i) * GridEdge::row + static_cast<std::uint32_t>(k + 1);
                addIfCrossed({node, false}, row[k], nextRow[k]);
                addIfCrossed({node, true}, row[k], row[k + 1]);
            }
        }
    }
    return crossed;
}

LevelCrossings::LevelCrossings(const PlaceTable& places, std::size_t levels) : first_(levels + 1) {
    const std::vector<CrossedEdge> crossed = crossedEdges(places);
    std::vector<std::ptrdiff_t> change(levels + 1);
    for (const CrossedEdge& edge : crossed) {
        ++change[edge.levels.first];
        --change[edge.levels.end];
    }
    std::ptrdiff_t perLevel = 0;
    std::size_t total = 0;
    for (std::size_t level = 0; level < levels; ++level) {
        first_[level + 1] = total;  // Where the level begins; filled up, where it ends.
        perLevel += change[level];
        total += static_cast<std::size_t>(perLevel);
    }
    if (total > maxContourCrossings)
        throw base::Failure(base::FailureCode::BadInput,
                            "The interval of the contours is too small: their lines would cross more than " +
                                std::to_string(maxContourCrossings) + " edges of the grid.");
    edges_.resize(total);
    for (const CrossedEdge& edge : crossed)
        for (std::size_t level = edge.levels.first; level < edge.levels.end; ++level)
            edges_[first_[level + 1]++] = edge.edge;
}

}  // namespace tessaplot::geometry

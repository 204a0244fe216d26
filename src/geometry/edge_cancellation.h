#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tessaplot::geometry {

/// A directed edge from one point number to another.
struct Edge {
    std::int32_t start = 0;
    std::int32_t end = 0;
};

/// Directed edges in the order they came, without the pairs that run opposite to each other.
///
/// An edge cancels the earliest opposite one that still stands: the same that remain if each edge in turn looks for the
/// first opposite one after it.
class EdgeCancellation {
 public:
    void clear();
    void add(std::int32_t start, std::int32_t end);

    /// Calls `visit(edge)` for each edge that is left, in order.
    template <class Visit>
    void forEachLeft(Visit visit) const {
        for (const Entry& entry : entries_)
            if (!entry.cancelled) visit(entry.edge);
    }

 private:
    static constexpr std::int32_t none = -1;

    struct Entry {
        Edge edge;
        std::int32_t nextAlike;  ///< The next standing edge of the same ends; all of these have one direction.
        bool cancelled;
    };
    /// A place of the hash table: the standing edges between two points, whichever way they run.
    struct Slot {
        std::uint64_t ends = 0;
        std::uint64_t round = 0;  ///< The slot is in use if this is the present round.
        std::int32_t first = none;
        std::int32_t last = none;
    };

    Slot& slotOf(std::uint64_t ends);
    void grow();
    void append(Slot& slot, std::int32_t entry);

    std::vector<Entry> entries_;
    std::vector<Slot> slots_ = std::vector<Slot>(64);  ///< A power of two, more than twice the entries.
    std::uint64_t round_ = 1;
};

}  // namespace tessaplot::geometry

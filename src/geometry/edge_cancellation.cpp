#include "geometry/edge_cancellation.h"

#include <algorithm>

namespace tessaplot::geometry {

namespace {

/// The same number for both directions between two points.
std::uint64_t endsOf(Edge edge) {
    const auto [low, high] = std::minmax(edge.start, edge.end);
    return (static_cast<std::uint64_t>(static_cast<std::uint32_t>(high)) << 32) | static_cast<std::uint32_t>(low);
}

}  // namespace

void EdgeCancellation::clear() {
    entries_.clear();
    ++round_;
}

void EdgeCancellation::add(std::int32_t start, std::int32_t end) {
    if (2 * (entries_.size() + 1) >= slots_.size()) grow();
    const auto number = static_cast<std::int32_t>(entries_.size());
    entries_.push_back({{start, end}, none, false});
    Slot& slot = slotOf(endsOf({start, end}));
    if (slot.first == none || entries_[static_cast<std::size_t>(slot.first)].edge.start == start) {
        append(slot, number);
        return;
    }
    Entry& opposite = entries_[static_cast<std::size_t>(slot.first)];
    slot.first = opposite.nextAlike;
    opposite.cancelled = true;
    entries_.back().cancelled = true;
}

EdgeCancellation::Slot& EdgeCancellation::slotOf(std::uint64_t ends) {
    const std::size_t mask = slots_.size() - 1;
    std::size_t place = ((ends * 0x9E3779B97F4A7C15U) >> 32) & mask;
    while (slots_[place].round == round_ && slots_[place].ends != ends)
        place = (place + 1) & mask;
    Slot& slot = slots_[place];
    if (slot.round != round_) slot = {ends, round_, none, none};
    return slot;
}

void EdgeCancellation::append(Slot& slot, std::int32_t entry) {
    if (slot.first == none)
        slot.first = entry;
    else
        entries_[static_cast<std::size_t>(slot.last)].nextAlike = entry;
    slot.last = entry;
}

void EdgeCancellation::grow() {
    slots_.assign(2 * slots_.size(), Slot{});
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        if (entries_[i].cancelled) continue;
        entries_[i].nextAlike = none;
        append(slotOf(endsOf(entries_[i].edge)), static_cast<std::int32_t>(i));
    }
}

}  // namespace tessaplot::geometry

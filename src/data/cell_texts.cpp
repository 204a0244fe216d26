#include "data/cell_texts.h"

#include <limits>
#include <utility>

#include "base/failure.h"

namespace tessaplot::data {

namespace {

/// How long texts may grow before those of them that are unused go; so each byte is moved about once.
std::size_t roomFor(std::size_t usedBytes) {
    constexpr std::size_t smallTable = 1U << 16U;
    return 2 * usedBytes + smallTable;
}

}  // namespace

void CellTexts::set(std::size_t row, std::size_t column, std::string_view text) {
    requireRoom(text.size());
    const std::size_t start = texts_.size();
    if (row >= rows_.size()) rows_.resize(row + 1);
    texts_.append(text);
    rows_[row][column] = {static_cast<std::uint32_t>(start), static_cast<std::uint32_t>(text.size())};
    if (texts_.size() > roomyBytes_) dropUnused();
}

void CellTexts::take(std::string text) {
    requireRoom(text.size());
    dropUnused();
    for (Row& row : rows_)
        for (Place& place : row)
            place.start += static_cast<std::uint32_t>(text.size());
    text += texts_;
    texts_ = std::move(text);
    roomyBytes_ = roomFor(texts_.size());
}

void CellTexts::trim() {
    std::size_t used = 0;
    for (const Row& row : rows_)
        for (const Place& place : row)
            used += place.length;
    if (texts_.size() > roomFor(used)) dropUnused();
}

void CellTexts::requireRoom(std::size_t bytes) const {
    if (bytes > std::numeric_limits<std::uint32_t>::max() - texts_.size())
        throw base::Failure(base::FailureCode::SubscriptOutOfRange, "The texts of the data grid exceed 4 GiB.");
}

void CellTexts::dropUnused() {
    std::string used;
    for (Row& row : rows_) {
        for (Place& place : row) {
            const std::size_t start = used.size();
            used.append(texts_, place.start, place.length);
            place.start = static_cast<std::uint32_t>(start);
        }
    }
    used.shrink_to_fit();
    texts_.swap(used);  // A short text would be copied into the old memory.
    roomyBytes_ = roomFor(texts_.size());
}

}  // namespace tessaplot::data

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tessaplot::data {

/// The texts of a table's cells in one piece of memory, which keeps a table of short texts small and quick to fill. A
/// text that is replaced stays there, unused, until a later one asks for more room.
class CellTexts {
 public:
    static constexpr std::size_t columns = 4;

    /// Where the text of a cell lies.
    struct Place {
        std::uint32_t start = 0;
        std::uint32_t length = 0;
        bool isBlank() const { return length == 0; }
    };
    using Row = std::array<Place, columns>;

    /// Rows as far as any was written. They may be moved, taken out and put in, and so may the cells in a row.
    std::vector<Row>& rows() { return rows_; }
    const std::vector<Row>& rows() const { return rows_; }

    /// The text of a cell, row and column from 0, valid until the next `set`. Blank past the rows.
    std::string_view at(std::size_t row, std::size_t column) const {
        if (row >= rows_.size()) return {};
        const Place place = rows_[row][column];
        return {texts_.data() + place.start, place.length};
    }

    /// Replaces the text of a cell, row and column from 0; `text` may be one of the table's own. Throws
    /// SubscriptOutOfRange if all texts together come to 4 GiB.
    void set(std::size_t row, std::size_t column, std::string_view text);

    /// Takes a text over, so that a place in it is one for a cell. Throws as `set` does.
    void take(std::string text);

    /// Lets go of what no cell uses, if that is the larger part.
    void trim();

    /// Bytes held.
    std::size_t bytes() const { return rows_.capacity() * sizeof(Row) + texts_.capacity(); }

 private:
    void requireRoom(std::size_t bytes) const;
    void dropUnused();

    std::vector<Row> rows_;
    std::string texts_;
    std::size_t roomyBytes_ = 0;  ///< Length of `texts_` up to which what is unused may stay.
};

}  // namespace tessaplot::data

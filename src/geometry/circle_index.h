#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "geometry/circumcircle.h"

namespace tessaplot::geometry {

/// The box of all places that are asked about.
struct PlaneBox {
    double minX = 0;
    double maxX = 0;
    double minY = 0;
    double maxY = 0;
};

/// Circles that come and go, found by a point they hold: exactly those for which `Circle::holds` is true.
///
/// A tree of squares, each divided into four. A circle hangs, by the lower left corner of its box, in a square at least
/// as wide as that box, so that a point meets it in its own square or in one next to it, to the left or below. The
/// widest circles, of which points on a line make many, stand in one row that is searched from end to end.
class CircleIndex {
 public:
    explicit CircleIndex(const PlaneBox& box);

    /// `id` is the caller's number for the circle, from 0; it is free to be used again after `remove`.
    void insert(std::int32_t id, const Circle& circle);
    /// Nothing happens for an id that is not in the index.
    void remove(std::int32_t id);
    /// Appends the ids of all circles that hold the point, which lies in the box; in no particular order.
    void find(double x, double y, std::vector<std::int32_t>& ids) const;

 private:
    static constexpr std::int32_t none = -1;
    /// Places along an axis are whole numbers below 2 to this power; a square of the last level is one place wide.
    static constexpr int levels = 24;
    /// Circles of this level and those above stand in `wide_`.
    static constexpr int lastWideLevel = 1;

    struct Square {
        std::array<std::int32_t, 4> children = {none, none, none, none};
        std::int32_t parent = none;
        std::int32_t firstCircle = none;
        std::uint8_t childInParent = 0;
        std::uint8_t childCount = 0;
    };
    /// A circle and where it hangs.
    struct Hung {
        Circle circle;
        std::int32_t square = none;    ///< None for a circle that is in no square.
        std::int32_t previous = none;  ///< In the square.
        std::int32_t next = none;
        std::int32_t wide = none;  ///< Index into `wide_`; none for a circle that is not there.
    };
    struct Wide {
        Circle circle;
        std::int32_t id;
    };
    /// One axis of the box; from numbers to places it never changes their order.
    struct Axis {
        double outside(double value) const;  ///< How far a value lies out of the box.
        std::uint32_t placeOf(double value) const;
        /// The places that a circle can reach along the axis; false if it cannot reach the box at all.
        bool reach(double centre, double radius, std::uint32_t& first, std::uint32_t& last) const;

        double low = 0;
        double high = 0;
        double scale = 0;  ///< The same for both axes, since circles are as wide as high.
    };
    /// The squares of a level that a point looks into: index 3 is its own, 1 the one below, 2 left, 0 both.
    using Neighbours = std::array<std::int32_t, 4>;

    void insertWide(std::int32_t id);
    void removeWide(std::int32_t id);
    void insertInto(std::int32_t square, std::int32_t id);
    void removeFromSquare(std::int32_t id);
    std::int32_t squareFor(int level, std::uint32_t placeX, std::uint32_t placeY);
    std::int32_t makeSquare(std::int32_t parent, std::uint8_t child);
    void dropEmptySquares(std::int32_t square);
    void findIn(std::int32_t square, double x, double y, std::vector<std::int32_t>& ids) const;
    bool descend(Neighbours& squares, int level, std::uint32_t placeX, std::uint32_t placeY) const;

    Axis x_;
    Axis y_;
    std::vector<Square> squares_ = std::vector<Square>(1);  ///< The whole box at index 0.
    std::vector<std::int32_t> unusedSquares_;
    std::vector<Hung> circles_;  ///< By their ids.
    std::vector<Wide> wide_;
};

}  // namespace tessaplot::geometry

#include "geometry/circle_index.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace tessaplot::geometry {

namespace {

std::uint8_t childAt(std::uint32_t squareX, std::uint32_t squareY) {
    return static_cast<std::uint8_t>((squareX & 1) + 2 * (squareY & 1));
}

/// Half the width of a circle at a distance from its centre: what it reaches of a box that begins there. Widened by
/// what the difference of squares and the test of `holds` can lose.
double halfChord(double radius, double distance) {
    if (distance == 0) return radius;
    constexpr double margin = 1e-14;
    return std::sqrt(std::max((radius - distance) * (radius + distance), 0.0) + margin * radius * radius);
}

}  // namespace

double CircleIndex::Axis::outside(double value) const {
    return std::max({low - value, value - high, 0.0});
}

std::uint32_t CircleIndex::Axis::placeOf(double value) const {
    constexpr double last = (1U << levels) - 1;
    const double place = (value - low) * scale;
    if (!(place > 0)) return 0;  // Also what is no number: nothing times an infinite scale.
    return static_cast<std::uint32_t>(std::min(place, last));
}

bool CircleIndex::Axis::reach(double centre, double radius, std::uint32_t& first, std::uint32_t& last) const {
    // Wider than any point can lie that `holds` takes in spite of its rounding, squares that underflow included.
    constexpr double relativeMargin = 4e-15;
    constexpr double leastMargin = 1e-150;
    const double extent = radius + (std::abs(centre) + radius) * relativeMargin + leastMargin;
    if (centre + extent < low || centre - extent > high) return false;
    first = placeOf(centre - extent);
    last = placeOf(centre + extent);
    return true;
}

CircleIndex::CircleIndex(const PlaneBox& box) {
    const double width = std::max(box.maxX - box.minX, box.maxY - box.minY);
    const double scale = width > 0 ? std::ldexp(1.0, levels) / width : 0;
    x_ = {box.minX, box.maxX, scale};
    y_ = {box.minY, box.maxY, scale};
}

void CircleIndex::insert(std::int32_t id, const Circle& circle) {
    const double radius = std::sqrt(circle.squaredRadius);
    const double radiusX = halfChord(radius, y_.outside(circle.y));
    const double radiusY = halfChord(radius, x_.outside(circle.x));
    std::uint32_t firstX = 0;
    std::uint32_t lastX = 0;
    std::uint32_t firstY = 0;
    std::uint32_t lastY = 0;
    if (!x_.reach(circle.x, radiusX, firstX, lastX) || !y_.reach(circle.y, radiusY, firstY, lastY)) return;

    const auto index = static_cast<std::size_t>(id);
    if (index >= circles_.size()) circles_.resize(index + 1);
    circles_[index] = {.circle = circle};
    const std::uint32_t width = std::max(lastX - firstX, lastY - firstY);
    const int level = width == 0 ? levels : levels - std::bit_width(width - 1);
    if (level <= lastWideLevel)
        insertWide(id);
    else
        insertInto(squareFor(level, firstX, firstY), id);
}

void CircleIndex::remove(std::int32_t id) {
    const auto index = static_cast<std::size_t>(id);
    if (index >= circles_.size()) return;
    if (circles_[index].wide != none) removeWide(id);
    if (circles_[index].square != none) removeFromSquare(id);
}

void CircleIndex::insertWide(std::int32_t id) {
    Hung& hung = circles_[static_cast<std::size_t>(id)];
    hung.wide = static_cast<std::int32_t>(wide_.size());
    wide_.push_back({hung.circle, id});
}

void CircleIndex::removeWide(std::int32_t id) {
    std::int32_t& place = circles_[static_cast<std::size_t>(id)].wide;
    const Wide last = wide_.back();
    wide_[static_cast<std::size_t>(place)] = last;
    circles_[static_cast<std::size_t>(last.id)].wide = place;
    wide_.pop_back();
    place = none;
}

void CircleIndex::insertInto(std::int32_t square, std::int32_t id) {
    Hung& hung = circles_[static_cast<std::size_t>(id)];
    std::int32_t& head = squares_[static_cast<std::size_t>(square)].firstCircle;
    hung.square = square;
    hung.next = head;
    if (head != none) circles_[static_cast<std::size_t>(head)].previous = id;
    head = id;
}

void CircleIndex::removeFromSquare(std::int32_t id) {
    Hung& hung = circles_[static_cast<std::size_t>(id)];
    if (hung.next != none) circles_[static_cast<std::size_t>(hung.next)].previous = hung.previous;
    if (hung.previous != none)
        circles_[static_cast<std::size_t>(hung.previous)].next = hung.next;
    else
        squares_[static_cast<std::size_t>(hung.square)].firstCircle = hung.next;
    dropEmptySquares(hung.square);
    hung.square = none;
}

void CircleIndex::find(double x, double y, std::vector<std::int32_t>& ids) const {
    for (const Wide& wide : wide_)
        if (wide.circle.holds(x, y)) ids.push_back(wide.id);
    const std::uint32_t placeX = x_.placeOf(x);
    const std::uint32_t placeY = y_.placeOf(y);
    Neighbours squares = {none, none, none, 0};
    int level = 0;
    do {
        for (const std::int32_t square : squares)
            if (square != none) findIn(square, x, y, ids);
    } while (++level <= levels && descend(squares, level, placeX, placeY));
}

void CircleIndex::findIn(std::int32_t square, double x, double y, std::vector<std::int32_t>& ids) const {
    for (std::int32_t id = squares_[static_cast<std::size_t>(square)].firstCircle; id != none;) {
        const Hung& hung = circles_[static_cast<std::size_t>(id)];
        if (hung.circle.holds(x, y)) ids.push_back(id);
        id = hung.next;
    }
}

/// From the squares of the level above to those of `level`; false if there are none.
bool CircleIndex::descend(Neighbours& squares, int level, std::uint32_t placeX, std::uint32_t placeY) const {
    const Neighbours above = squares;
    const std::uint32_t ownX = placeX >> (levels - level);
    const std::uint32_t ownY = placeY >> (levels - level);
    bool any = false;
    for (std::uint32_t i = 0; i < 4; ++i) {
        const std::uint32_t leftward = 1 - (i & 1);
        const std::uint32_t downward = 1 - (i >> 1);
        // A square to the left has the parent to the left only if its right neighbour is a left child.
        const std::uint32_t parent = ((ownX & 1) >= leftward ? 1U : 0U) + ((ownY & 1) >= downward ? 2U : 0U);
        const std::int32_t square = above[parent];
        squares[i] =
            square == none
                ? none
                : squares_[static_cast<std::size_t>(square)].children[childAt(ownX - leftward, ownY - downward)];
        any = any || squares[i] != none;
    }
    return any;
}

/// The square of the level that holds the place, made if it is not there.
std::int32_t CircleIndex::squareFor(int level, std::uint32_t placeX, std::uint32_t placeY) {
    std::int32_t square = 0;
    for (int shift = levels - 1; shift >= levels - level; --shift) {
        const std::uint8_t child = childAt(placeX >> shift, placeY >> shift);
        std::int32_t next = squares_[static_cast<std::size_t>(square)].children[child];
        if (next == none) next = makeSquare(square, child);
        square = next;
    }
    return square;
}

std::int32_t CircleIndex::makeSquare(std::int32_t parent, std::uint8_t child) {
    auto made = static_cast<std::int32_t>(squares_.size());
    if (unusedSquares_.empty()) {
        squares_.emplace_back();
    } else {
        made = unusedSquares_.back();
        unusedSquares_.pop_back();
        squares_[static_cast<std::size_t>(made)] = {};
    }
    squares_[static_cast<std::size_t>(made)].parent = parent;
    squares_[static_cast<std::size_t>(made)].childInParent = child;
    Square& above = squares_[static_cast<std::size_t>(parent)];
    above.children[child] = made;
    ++above.childCount;
    return made;
}

void CircleIndex::dropEmptySquares(std::int32_t square) {
    while (square != 0) {
        const Square& empty = squares_[static_cast<std::size_t>(square)];
        if (empty.firstCircle != none || empty.childCount != 0) return;
        Square& above = squares_[static_cast<std::size_t>(empty.parent)];
        above.children[empty.childInParent] = none;
        --above.childCount;
        unusedSquares_.push_back(square);
        square = empty.parent;
    }
}

}  // namespace tessaplot::geometry

#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <vector>

#include "numerics/parallel_pieces.h"

namespace tessaplot::numerics {

/// A point found by a search: its index and its squared distance.
struct Neighbour {
    double square = std::numeric_limits<double>::infinity();
    std::uint32_t index = std::numeric_limits<std::uint32_t>::max();

    /// Nearer, or equally near and earlier: the order of a search through the points from the first to the last.
    bool precedes(const Neighbour& other) const {
        return square < other.square || (square == other.square && index < other.index);
    }
};

/// The nearest points found so far, in order.
class NearestList {
 public:
    static constexpr std::size_t capacity = 5;

    /// For the nearest `wanted` points, none of which lies beyond `largestSquare`.
    explicit NearestList(std::size_t wanted, double largestSquare = std::numeric_limits<double>::infinity())
        : wanted_(wanted) {
        found_.fill({.square = largestSquare});
    }

    const Neighbour& worst() const { return found_[wanted_ - 1]; }
    std::span<const Neighbour> found() const { return {found_.data(), wanted_}; }

    void offer(const Neighbour& candidate) {
        if (candidate.square > worst().square || !candidate.precedes(worst())) return;
        std::size_t at = wanted_ - 1;
        for (; at > 0 && candidate.precedes(found_[at - 1]); --at)
            found_[at] = found_[at - 1];
        found_[at] = candidate;
    }

 private:
    std::size_t wanted_;
    std::array<Neighbour, capacity> found_;
};

/// An index of points for searches of the nearest (J. L. Bentley, "Multidimensional binary search trees used for
/// associative searching", 1975, with a box around each node). Distances are sums of one term an axis; as the terms
/// grow with the difference even after rounding, the boxes exclude exactly the points that a full search would pass
/// over.
template <std::size_t dimensions>
class KdTree {
 public:
    using Position = std::array<double, dimensions>;

    /// Takes columns of finite coordinates, all of one length.
    explicit KdTree(const std::array<std::span<const double>, dimensions>& columns) {
        const std::size_t count = columns[0].size();
        if (count == 0) return;
        std::vector<Entry> entries(count);
        for (std::size_t i = 0; i < count; ++i) {
            for (std::size_t axis = 0; axis < dimensions; ++axis)
                entries[i].position[axis] = columns[axis][i];
            entries[i].index = static_cast<std::uint32_t>(i);
        }
        nodes_.resize(nodesOver(count));
        build(entries, {0, count, 0});
        store(entries);
    }

    /// Adds to `nearest` the points nearest to `position`. `term(axis, difference)` is the squared distance along an
    /// axis; it must not fall where the magnitude of the difference grows.
    template <class Term>
    void search(const Position& position, const Term& term, NearestList& nearest) const {
        if (!nodes_.empty()) visit(0, position, term, nearest);
    }

 private:
    static constexpr std::size_t leafPoints = 24;
    static constexpr std::size_t pointsWorthThreads = 8192;

    struct Entry {
        Position position;
        std::uint32_t index = 0;
    };

    struct Node {
        Position low, high;
        std::uint32_t begin = 0, end = 0;  ///< Its points, as positions in `indices_`.
        std::uint32_t earliest = 0;        ///< The smallest index among its points.
        std::uint32_t second = 0;          ///< Its second child; the first follows the node. 0 in a leaf.
    };

    /// Entries from `begin` to `end` and the place of the node over them.
    struct Part {
        std::size_t begin, end, at;
    };

    /// The nodes of the tree over so many points.
    static std::size_t nodesOver(std::size_t points) {
        return points <= leafPoints ? 1 : 1 + nodesOver(points / 2) + nodesOver(points - points / 2);
    }

    void build(std::span<Entry> entries, const Part& part) {
        const auto [begin, end, at] = part;
        Node& node = nodes_[at];
        node = boundedNode(entries, begin, end);
        if (end - begin <= leafPoints) return;
        const std::size_t middle = begin + (end - begin) / 2;
        Entry* const first = entries.data();
        std::nth_element(
            first + begin, first + middle, first + end,
            [axis = widestAxis(node)](const Entry& a, const Entry& b) { return a.position[axis] < b.position[axis]; });
        const std::size_t second = at + 1 + nodesOver(middle - begin);
        node.second = static_cast<std::uint32_t>(second);
        const std::array<Part, 2> halves = {{{begin, middle, at + 1}, {middle, end, second}}};
        const auto buildHalves = [&](std::size_t from, std::size_t to) {
            for (std::size_t half = from; half < to; ++half)
                build(entries, halves[half]);
        };
        if (end - begin < pointsWorthThreads)
            buildHalves(0, halves.size());
        else
            forEachPiece(halves.size(), 1, buildHalves, {});
    }

    static Node boundedNode(std::span<const Entry> entries, std::size_t begin, std::size_t end) {
        Node node;
        node.low = node.high = entries[begin].position;
        node.begin = static_cast<std::uint32_t>(begin);
        node.end = static_cast<std::uint32_t>(end);
        node.earliest = entries[begin].index;
        for (const Entry& entry : entries.subspan(begin, end - begin)) {
            node.earliest = std::min(node.earliest, entry.index);
            for (std::size_t axis = 0; axis < dimensions; ++axis) {
                node.low[axis] = std::min(node.low[axis], entry.position[axis]);
                node.high[axis] = std::max(node.high[axis], entry.position[axis]);
            }
        }
        return node;
    }

    /// Keeps the entries as columns, with room for a whole leaf behind the last.
    void store(std::span<const Entry> entries) {
        for (const Entry& entry : entries)
            indices_.push_back(entry.index);
        for (std::size_t axis = 0; axis < dimensions; ++axis) {
            coordinates_[axis].reserve(entries.size() + leafPoints);
            for (const Entry& entry : entries)
                coordinates_[axis].push_back(entry.position[axis]);
            coordinates_[axis].resize(entries.size() + leafPoints);
        }
    }

    static std::size_t widestAxis(const Node& node) {
        std::size_t widest = 0;
        for (std::size_t axis = 1; axis < dimensions; ++axis)
            if (node.high[axis] - node.low[axis] > node.high[widest] - node.low[widest]) widest = axis;
        return widest;
    }

    template <class Term>
    Neighbour nearestInBox(const Node& node, const Position& position, const Term& term) const {
        double square = 0;
        for (std::size_t axis = 0; axis < dimensions; ++axis) {
            const double gap =
                std::max(0.0, std::max(node.low[axis] - position[axis], position[axis] - node.high[axis]));
            square += term(axis, gap);
        }
        return {square, node.earliest};
    }

    template <class Term>
    void visit(std::size_t at, const Position& position, const Term& term, NearestList& nearest) const {
        const Node& node = nodes_[at];
        if (node.second == 0) {
            scan(node, position, term, nearest);
            return;
        }
        std::size_t near = at + 1;
        std::size_t far = node.second;
        Neighbour nearBound = nearestInBox(nodes_[near], position, term);
        Neighbour farBound = nearestInBox(nodes_[far], position, term);
        if (farBound.precedes(nearBound)) {
            std::swap(near, far);
            std::swap(nearBound, farBound);
        }
        if (nearBound.precedes(nearest.worst())) visit(near, position, term, nearest);
        if (farBound.precedes(nearest.worst())) visit(far, position, term, nearest);
    }

    template <class Term>
    void scan(const Node& node, const Position& position, const Term& term, NearestList& nearest) const {
        std::array<double, leafPoints> squares;
        const double* first = coordinates_[0].data() + node.begin;
        for (std::size_t i = 0; i < leafPoints; ++i)
            squares[i] = term(0, first[i] - position[0]);
        for (std::size_t axis = 1; axis < dimensions; ++axis) {
            const double* column = coordinates_[axis].data() + node.begin;
            for (std::size_t i = 0; i < leafPoints; ++i)
                squares[i] += term(axis, column[i] - position[axis]);
        }
        for (std::size_t i = node.begin; i < node.end; ++i)
            nearest.offer({squares[i - node.begin], indices_[i]});
    }

    std::vector<std::uint32_t> indices_;                       ///< Of the points, leaf after leaf.
    std::array<std::vector<double>, dimensions> coordinates_;  ///< In that order.
    std::vector<Node> nodes_;                                  ///< The root first.
};

}  // namespace tessaplot::numerics

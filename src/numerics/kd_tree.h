#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <numeric>
#include <span>
#include <vector>

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

    explicit NearestList(std::size_t wanted) : wanted_(wanted) {}

    const Neighbour& worst() const { return found_[wanted_ - 1]; }
    std::span<const Neighbour> found() const { return {found_.data(), wanted_}; }

    void offer(const Neighbour& candidate) {
        if (!candidate.precedes(worst())) return;
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

    /// Takes columns of finite coordinates, all of one length, which must stay while the tree is built.
    explicit KdTree(const std::array<std::span<const double>, dimensions>& columns) {
        order_.resize(columns[0].size());
        std::iota(order_.begin(), order_.end(), 0U);
        if (order_.empty()) return;
        build(columns, 0, order_.size());
        for (std::size_t axis = 0; axis < dimensions; ++axis) {
            coordinates_[axis].reserve(order_.size());
            for (const std::uint32_t index : order_)
                coordinates_[axis].push_back(columns[axis][index]);
        }
    }

    /// Adds to `nearest` the points nearest to `position`. `term(axis, difference)` is the squared distance along an
    /// axis; it must not fall where the magnitude of the difference grows.
    template <class Term>
    void search(const Position& position, const Term& term, NearestList& nearest) const {
        if (!nodes_.empty()) visit(0, position, term, nearest);
    }

 private:
    static constexpr std::size_t leafPoints = 8;

    struct Node {
        Position low, high;
        std::uint32_t begin = 0, end = 0;  ///< Its points, as positions in `order_`.
        std::uint32_t earliest = 0;        ///< The smallest index among its points.
        std::uint32_t second = 0;          ///< Its second child; the first follows the node. 0 in a leaf.
    };

    std::size_t build(const std::array<std::span<const double>, dimensions>& columns, std::size_t begin,
                      std::size_t end) {
        const std::size_t at = nodes_.size();
        nodes_.push_back(boundedNode(columns, begin, end));
        if (end - begin <= leafPoints) return at;
        const std::span<const double> column = columns[widestAxis(nodes_[at])];
        const std::size_t middle = begin + (end - begin) / 2;
        const auto first = order_.begin();
        std::nth_element(first + static_cast<std::ptrdiff_t>(begin), first + static_cast<std::ptrdiff_t>(middle),
                         first + static_cast<std::ptrdiff_t>(end),
                         [column](std::uint32_t a, std::uint32_t b) { return column[a] < column[b]; });
        build(columns, begin, middle);
        const std::size_t second = build(columns, middle, end);
        nodes_[at].second = static_cast<std::uint32_t>(second);
        return at;
    }

    Node boundedNode(const std::array<std::span<const double>, dimensions>& columns, std::size_t begin,
                     std::size_t end) const {
        Node node;
        node.low.fill(std::numeric_limits<double>::infinity());
        node.high.fill(-std::numeric_limits<double>::infinity());
        node.begin = static_cast<std::uint32_t>(begin);
        node.end = static_cast<std::uint32_t>(end);
        node.earliest = *std::min_element(order_.begin() + static_cast<std::ptrdiff_t>(begin),
                                          order_.begin() + static_cast<std::ptrdiff_t>(end));
        for (std::size_t axis = 0; axis < dimensions; ++axis)
            for (std::size_t i = begin; i < end; ++i) {
                node.low[axis] = std::min(node.low[axis], columns[axis][order_[i]]);
                node.high[axis] = std::max(node.high[axis], columns[axis][order_[i]]);
            }
        return node;
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
            const double gap = std::max({node.low[axis] - position[axis], position[axis] - node.high[axis], 0.0});
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
        std::array<std::size_t, 2> children = {at + 1, node.second};
        std::array<Neighbour, 2> bounds = {nearestInBox(nodes_[children[0]], position, term),
                                           nearestInBox(nodes_[children[1]], position, term)};
        if (bounds[1].precedes(bounds[0])) {
            std::swap(children[0], children[1]);
            std::swap(bounds[0], bounds[1]);
        }
        for (std::size_t child = 0; child < children.size(); ++child)
            if (bounds[child].precedes(nearest.worst())) visit(children[child], position, term, nearest);
    }

    template <class Term>
    void scan(const Node& node, const Position& position, const Term& term, NearestList& nearest) const {
        for (std::size_t i = node.begin; i < node.end; ++i) {
            double square = 0;
            for (std::size_t axis = 0; axis < dimensions; ++axis)
                square += term(axis, coordinates_[axis][i] - position[axis]);
            nearest.offer({square, order_[i]});
        }
    }

    std::vector<std::uint32_t> order_;                         ///< Indices of the points, leaf after leaf.
    std::array<std::vector<double>, dimensions> coordinates_;  ///< In that order.
    std::vector<Node> nodes_;                                  ///< The root first.
};

}  // namespace tessaplot::numerics

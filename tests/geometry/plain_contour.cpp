#include "geometry/plain_contour.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

#include "geometry/missing_node.h"

namespace tessaplot::geometry::test {

namespace {

constexpr double none = -2;

struct Edge {
    int i = 0;
    int j = 0;
    int f = 0;  ///< 1: to (i, j + 1); 0: to (i + 1, j).
    friend bool operator==(const Edge&, const Edge&) = default;
};

class PlainContour {
 public:
    PlainContour(const ContourGrid& grid, std::span<const double> surface)
        : grid_(grid), surface_(surface), H_(table()), V_(table()) {}

    ContourLines<SurfacePoint> run(double interval) {
        double zmax = -1e10;
        double zmin = 1e10;
        forEachNode([&](int i, int j) {
            if (z(i, j) > zmax) zmax = z(i, j);
            if (z(i, j) < zmin) zmin = z(i, j);
        });
        std::vector<double> levels;
        for (double z = (std::floor(zmin / interval) + 1) * interval; z <= std::floor(zmax / interval) * interval;
             z += interval)
            levels.push_back(z);
        for (const double level : levels)
            forEachNode([&](int i, int j) {
                if (std::abs(z(i, j) - level) <= 0.0001) z(i, j) += 1e-5;
            });
        for (const double level : levels) {
            const std::size_t first = lines_.segments.size();
            traceLevel(level);
            lines_.levels.push_back({level, {}, first, lines_.segments.size()});
        }
        return lines_;
    }

 private:
    std::vector<double> table() const { return std::vector<double>(at(grid_.m + 2, 0), none); }
    std::size_t at(int i, int j) const {
        return static_cast<std::size_t>(i) * static_cast<std::size_t>(grid_.n + 2) + static_cast<std::size_t>(j);
    }
    double& entry(Edge edge) { return edge.f == 1 ? V_[at(edge.i, edge.j)] : H_[at(edge.i, edge.j)]; }
    std::size_t node(int i, int j) const {
        return static_cast<std::size_t>(i - 1) * grid_.rowStride + static_cast<std::size_t>(j - 1);
    }
    double& z(int i, int j) const { return grid_.z[node(i, j)]; }
    double height(int i, int j) const { return surface_[node(i, j)]; }

    template <class Visit>
    void forEachNode(const Visit& visit) {
        for (int i = 1; i <= grid_.m; ++i)
            for (int j = 1; j <= grid_.n; ++j)
                if (isUsable(z(i, j))) visit(i, j);
    }

    double fraction(double level, int i, int j, int i2, int j2) const {
        for (const double value : {z(i, j), z(i2, j2), height(i, j), height(i2, j2)})
            if (!isUsable(value)) return none;
        const bool rises = z(i, j) < level && z(i2, j2) > level;
        const bool falls = z(i, j) > level && z(i2, j2) < level;
        return rises || falls ? (level - z(i, j)) / (z(i2, j2) - z(i, j)) : none;
    }

    void traceLevel(double level) {
        const int m = grid_.m;
        const int n = grid_.n;
        for (int i = 1; i <= m; ++i)
            for (int j = 1; j <= n; ++j) {
                if (i < m) entry({i, j, 0}) = fraction(level, i, j, i + 1, j);
                if (j < n) entry({i, j, 1}) = fraction(level, i, j, i, j + 1);
            }
        for (int j = 1; j < n; ++j)
            start({1, j, 1}, 0, j);
        for (int i = 1; i < m; ++i)
            start({i, 1, 0}, i, 0);
        for (int j = 1; j < n; ++j)
            start({m, j, 1}, m + 1, j);
        for (int i = 1; i < m; ++i)
            start({i, n, 0}, i, n + 1);
        for (int i = 2; i < m; ++i)
            for (int j = 1; j < n; ++j)
                startBothWays({i, j, 1}, {i - 1, j}, {i + 1, j});
        for (int i = 1; i < m; ++i)
            for (int j = 2; j < n; ++j)
                startBothWays({i, j, 0}, {i, j - 1}, {i, j + 1});
    }

    void start(Edge edge, int pi, int pj) {
        if (entry(edge) >= 0) TraceLine(edge, pi, pj, false);
    }

    /// What holes leave open amid the grid goes on the other way.
    void startBothWays(Edge edge, std::array<int, 2> before, std::array<int, 2> after) {
        if (entry(edge) < 0) return;
        const double kept = entry(edge);
        if (TraceLine(edge, before[0], before[1], true)) return;
        entry(edge) = kept;
        TraceLine(edge, after[0], after[1], false);
    }

    struct Position {
        double A = 0;
        double B = 0;
        double h = 0;
    };

    Position CrossingPoint(Edge e) {
        const double t = entry(e);
        const double next = e.f == 1 ? height(e.i, e.j + 1) : height(e.i + 1, e.j);
        return {grid_.a * (e.j + e.f * t), grid_.b * (e.i + (1 - e.f) * t),
                height(e.i, e.j) + (next - height(e.i, e.j)) * t};
    }

    /// True if the line closed, which it may if it `canClose`.
    bool TraceLine(Edge first, int pi, int pj, bool canClose) {
        Edge edge = first;
        const Position begin = CrossingPoint(first);
        Position previous = begin;
        const double kept = entry(first);
        entry(first) = none;
        for (bool left = false;; left = true) {
            // The start is open to whoever comes back from behind it, once the line has left the cell before it.
            entry(first) = left && canClose ? kept : none;
            const Edge next = NextCrossing(edge, pi, pj, previous.A, first, left);
            entry(first) = none;
            if (next.i == 0) return false;
            if (next == first) {
                emit(previous, begin);
                return true;
            }
            const Position point = CrossingPoint(next);
            entry(next) = none;
            emit(previous, point);
            previous = point;
            pi = edge.i;
            pj = edge.j;
            edge = next;
            if (edge.f == 1 ? edge.i == 1 || edge.i == grid_.m : edge.j == 1 || edge.j == grid_.n) return false;
        }
    }

    /// The case tells the cell; the cell that the line began in does not see the start.
    Edge NextCrossing(Edge e, int pi, int pj, double previousA, Edge first, bool left) {
        const auto [i, j, f] = e;
        std::array<Edge, 3> sides = {{{i - 1, j, 0}, {i - 1, j + 1, 0}, {i - 1, j, 1}}};
        if (pi < i)
            sides = {{{i, j, 0}, {i, j + 1, 0}, {i + 1, j, 1}}};
        else if (pj < j)
            sides = {{{i, j, 1}, {i + 1, j, 1}, {i, j + 1, 0}}};
        else if (j * grid_.a >= previousA)
            sides = {{{i, j - 1, 1}, {i + 1, j - 1, 1}, {i, j - 1, 0}}};
        const std::array<int, 2> cell = {sides[0].i, sides[0].j};
        if (!left) firstCell_ = cell;
        for (const Edge side : sides)
            if (entry(side) > 0 && !(side == first && cell == firstCell_)) return side;
        return {};
    }

    void emit(const Position& from, const Position& to) {
        const auto place = [&](const Position& p) { return SurfacePoint{p.A + grid_.ox, p.B + grid_.oy, p.h}; };
        lines_.segments.push_back({place(from), place(to)});
    }

    const ContourGrid& grid_;
    std::span<const double> surface_;
    std::vector<double> H_;
    std::vector<double> V_;
    std::array<int, 2> firstCell_ = {};
    ContourLines<SurfacePoint> lines_;
};

}  // namespace

ContourLines<SurfacePoint> plainContour3D(const ContourGrid& grid, std::span<const double> surface, double interval) {
    return PlainContour(grid, surface).run(interval);
}

}  // namespace tessaplot::geometry::test

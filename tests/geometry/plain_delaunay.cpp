#include "geometry/plain_delaunay.h"

#include <cmath>
#include <utility>
#include <vector>

#include "base/number_text.h"

namespace tessaplot::geometry::test {

namespace {

constexpr double EPS = 1e-6;

class PlainTriangulation {
 public:
    PlainTriangulation(std::int32_t points, std::span<double> xs, std::span<double> ys) : n(points), X(xs), Y(ys) {}

    Triangulation run() {
        enclose();
        for (int i = 1; i <= n; ++i) {
            walk(i);
            cancel();
            for (const auto& [start, end] : edges_)
                if (start != 0) result_.triangles.push_back({start, end, i});
        }
        for (std::size_t i = 0; i < result_.triangles.size();) {
            const Triangle t = result_.triangles[i];
            t.a > n || t.b > n || t.c > n ? takeOut(i) : static_cast<void>(++i);
        }
        return result_;
    }

 private:
    double& x(int i) { return X[static_cast<std::size_t>(i)]; }
    double& y(int i) { return Y[static_cast<std::size_t>(i)]; }

    static std::pair<int, int> rangeOf(std::span<const double> column, int n) {
        int low = base::roundToInteger(column[1]);
        int high = low;
        for (const double value : column.subspan(1, static_cast<std::size_t>(n))) {
            if (value < low) low = base::roundToInteger(value);
            if (value > high) high = base::roundToInteger(value);
        }
        return {low, high};
    }

    void enclose() {
        const auto [xmin, xmax] = rangeOf(X, n);
        const auto [ymin, ymax] = rangeOf(Y, n);
        const int dmax = xmax - xmin > ymax - ymin ? xmax - xmin : ymax - ymin;
        const int xmid = base::roundToInteger((xmax + xmin) / 2.0);
        const int ymid = base::roundToInteger((ymax + ymin) / 2.0);
        x(n + 1) = xmid - 2 * dmax;
        y(n + 1) = ymid - dmax;
        x(n + 2) = xmid;
        y(n + 2) = ymid + 2 * dmax;
        x(n + 3) = xmid + 2 * dmax;
        y(n + 3) = ymid - dmax;
        result_.triangles = {{n + 1, n + 2, n + 3}};
    }

    bool inCircle(double xp, double yp, const Triangle& t) {
        const double x1 = x(t.a), y1 = y(t.a), x2 = x(t.b), y2 = y(t.b), x3 = x(t.c), y3 = y(t.c);
        const double m1 = -(x2 - x1) / (y2 - y1), mx1 = (x1 + x2) / 2, my1 = (y1 + y2) / 2;
        const double m2 = -(x3 - x2) / (y3 - y2), mx2 = (x2 + x3) / 2, my2 = (y2 + y3) / 2;
        const bool level1 = std::abs(y2 - y1) < EPS;
        const bool level2 = std::abs(y3 - y2) < EPS;
        double xc = 0;
        double yc = 0;
        if (level1 && level2) return coincident();
        if (level1) {
            xc = mx1;
            yc = m2 * (xc - mx2) + my2;
        } else if (level2) {
            xc = mx2;
            yc = m1 * (xc - mx1) + my1;
        } else {
            if (m1 - m2 == 0) return coincident();
            xc = (m1 * mx1 - m2 * mx2 + my2 - my1) / (m1 - m2);
            yc = m1 * (xc - mx1) + my1;
        }
        const double rsqr = (x2 - xc) * (x2 - xc) + (y2 - yc) * (y2 - yc);
        if (!std::isfinite(rsqr)) return coincident();
        return (xp - xc) * (xp - xc) + (yp - yc) * (yp - yc) <= rsqr;
    }

    bool coincident() {
        ++result_.coincidentTests;
        return false;
    }

    /// The last triangle takes the place.
    void takeOut(std::size_t place) {
        result_.triangles[place] = result_.triangles.back();
        result_.triangles.pop_back();
    }

    void walk(int i) {
        edges_.clear();
        for (std::size_t j = 0; j < result_.triangles.size();) {
            const Triangle t = result_.triangles[j];
            if (inCircle(x(i), y(i), t)) {
                edges_.insert(edges_.end(), {{t.a, t.b}, {t.b, t.c}, {t.c, t.a}});
                takeOut(j);
            } else {
                ++j;
            }
        }
    }

    void cancel() {
        for (std::size_t j = 0; j < edges_.size(); ++j)
            for (std::size_t k = j + 1; k < edges_.size(); ++k)
                if (edges_[j].first != 0 && edges_[j] == std::pair(edges_[k].second, edges_[k].first))
                    edges_[j] = edges_[k] = {0, 0};
    }

    int n;
    std::span<double> X;
    std::span<double> Y;
    Triangulation result_;
    std::vector<std::pair<int, int>> edges_;
};

}  // namespace

Triangulation plainTriangulate(std::int32_t n, std::span<double> X, std::span<double> Y) {
    return PlainTriangulation(n, X, Y).run();
}

}  // namespace tessaplot::geometry::test

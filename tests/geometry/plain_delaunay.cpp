#include "geometry/plain_delaunay.h"

#include <cmath>

#include "base/checked_array.h"
#include "base/number_text.h"

namespace tessaplot::geometry::test {

namespace {

constexpr double EPS = 1e-6;

class PlainTriangulation {
 public:
    PlainTriangulation(std::int32_t points, std::span<double> xs, std::span<double> ys) : n(points), X(xs), Y(ys) {
        TriangleList.allocate(10000);
        Edges.allocate(2, 30000);
    }

    Triangulation run() {
        enclose();
        for (int i = 1; i <= n; ++i) {
            walk(i);
            cancel();
            for (int j = 1; j <= nedge; ++j)
                if (Edges(1, j) != 0 && Edges(2, j) != 0) TriangleList(++count) = {Edges(1, j), Edges(2, j), i};
        }
        removeEnclosing();
        Triangulation result;
        for (int i = 1; i <= count; ++i)
            result.triangles.push_back(TriangleList(i));
        result.coincidentTests = messages;
        return result;
    }

 private:
    double& x(int i) { return X[static_cast<std::size_t>(i)]; }
    double& y(int i) { return Y[static_cast<std::size_t>(i)]; }

    void enclose() {
        int xmin = base::roundToInteger(x(1));
        int xmax = xmin;
        int ymin = base::roundToInteger(y(1));
        int ymax = ymin;
        for (int i = 2; i <= n; ++i) {
            if (x(i) < xmin) xmin = base::roundToInteger(x(i));
            if (x(i) > xmax) xmax = base::roundToInteger(x(i));
            if (y(i) < ymin) ymin = base::roundToInteger(y(i));
            if (y(i) > ymax) ymax = base::roundToInteger(y(i));
        }
        const int dx = xmax - xmin;
        const int dy = ymax - ymin;
        const int dmax = dx > dy ? dx : dy;
        const int xmid = base::roundToInteger((xmax + xmin) / 2.0);
        const int ymid = base::roundToInteger((ymax + ymin) / 2.0);
        x(n + 1) = xmid - 2 * dmax;
        y(n + 1) = ymid - dmax;
        x(n + 2) = xmid;
        y(n + 2) = ymid + 2 * dmax;
        x(n + 3) = xmid + 2 * dmax;
        y(n + 3) = ymid - dmax;
        TriangleList(1) = {n + 1, n + 2, n + 3};
        count = 1;
    }

    bool inCircle(double xp, double yp, const Triangle& t) {
        const double x1 = x(t.a), y1 = y(t.a), x2 = x(t.b), y2 = y(t.b), x3 = x(t.c), y3 = y(t.c);
        if (std::abs(y1 - y2) < EPS && std::abs(y2 - y3) < EPS) return coincident();
        double xc = 0;
        double yc = 0;
        if (std::abs(y2 - y1) < EPS) {
            const double m2 = -(x3 - x2) / (y3 - y2);
            xc = (x2 + x1) / 2;
            yc = m2 * (xc - (x2 + x3) / 2) + (y2 + y3) / 2;
        } else if (std::abs(y3 - y2) < EPS) {
            const double m1 = -(x2 - x1) / (y2 - y1);
            xc = (x3 + x2) / 2;
            yc = m1 * (xc - (x1 + x2) / 2) + (y1 + y2) / 2;
        } else {
            const double m1 = -(x2 - x1) / (y2 - y1), mx1 = (x1 + x2) / 2, my1 = (y1 + y2) / 2;
            const double m2 = -(x3 - x2) / (y3 - y2), mx2 = (x2 + x3) / 2, my2 = (y2 + y3) / 2;
            if (m1 - m2 == 0) return coincident();
            xc = (m1 * mx1 - m2 * mx2 + my2 - my1) / (m1 - m2);
            yc = m1 * (xc - mx1) + my1;
        }
        const double rsqr = (x2 - xc) * (x2 - xc) + (y2 - yc) * (y2 - yc);
        if (!std::isfinite(rsqr)) return coincident();
        return (xp - xc) * (xp - xc) + (yp - yc) * (yp - yc) <= rsqr;
    }

    bool coincident() {
        ++messages;
        return false;
    }

    void walk(int i) {
        nedge = 0;
        int j = 0;
        do {
            ++j;
            const Triangle t = TriangleList(j);
            if (inCircle(x(i), y(i), t)) {
                addEdge(t.a, t.b);
                addEdge(t.b, t.c);
                addEdge(t.c, t.a);
                TriangleList(j) = TriangleList(count);
                --count;
                --j;
            }
        } while (j < count);
    }

    void addEdge(int start, int end) {
        ++nedge;
        Edges(1, nedge) = start;
        Edges(2, nedge) = end;
    }

    void cancel() {
        for (int j = 1; j < nedge; ++j) {
            if (Edges(1, j) == 0 || Edges(2, j) == 0) continue;
            for (int k = j + 1; k <= nedge; ++k) {
                if (Edges(1, k) == 0 || Edges(2, k) == 0) continue;
                if (Edges(1, j) == Edges(2, k) && Edges(2, j) == Edges(1, k))
                    Edges(1, j) = Edges(2, j) = Edges(1, k) = Edges(2, k) = 0;
            }
        }
    }

    void removeEnclosing() {
        int i = 0;
        do {
            ++i;
            const Triangle t = TriangleList(i);
            if (t.a > n || t.b > n || t.c > n) {
                TriangleList(i) = TriangleList(count);
                --i;
                --count;
            }
        } while (i < count);
    }

    int n;
    std::span<double> X;
    std::span<double> Y;
    base::CheckedArray<Triangle> TriangleList{"TriangleList"};
    base::CheckedArray<int> Edges{"Edges"};
    int count = 0;
    int nedge = 0;
    std::int64_t messages = 0;
};

}  // namespace

Triangulation plainTriangulate(std::int32_t n, std::span<double> X, std::span<double> Y) {
    return PlainTriangulation(n, X, Y).run();
}

}  // namespace tessaplot::geometry::test

#include "geometry/circumcircle.h"

#include <cmath>

namespace tessaplot::geometry {

namespace {

/// Heights closer than this are level: the bisector between them is upright and has no slope.
constexpr double levelHeights = 1e-6;

/// The perpendicular bisector of two points as a line through their middle.
struct Bisector {
    Bisector(double x1, double y1, double x2, double y2)
        : slope(-(x2 - x1) / (y2 - y1)), middleX((x1 + x2) / 2), middleY((y1 + y2) / 2) {}

    double heightAt(double x) const { return slope * (x - middleX) + middleY; }

    double slope;
    double middleX;
    double middleY;
};

}  // namespace

bool circumcircle(double x1, double y1, double x2, double y2, double x3, double y3, Circle& circle) {
    const bool firstLevel = std::abs(y1 - y2) < levelHeights;
    const bool secondLevel = std::abs(y2 - y3) < levelHeights;
    if (firstLevel && secondLevel) return false;

    double x = 0;
    double y = 0;
    if (firstLevel) {
        x = (x2 + x1) / 2;
        y = Bisector(x2, y2, x3, y3).heightAt(x);
    } else if (secondLevel) {
        x = (x3 + x2) / 2;
        y = Bisector(x1, y1, x2, y2).heightAt(x);
    } else {
        const Bisector first(x1, y1, x2, y2);
        const Bisector second(x2, y2, x3, y3);
        const double divisor = first.slope - second.slope;
        if (divisor == 0) return false;
        x = (first.slope * first.middleX - second.slope * second.middleX + second.middleY - first.middleY) / divisor;
        y = first.heightAt(x);
    }

    const double dx = x2 - x;
    const double dy = y2 - y;
    const double squaredRadius = dx * dx + dy * dy;
    if (!std::isfinite(squaredRadius)) return false;
    circle = {x, y, squaredRadius};
    return true;
}

}  // namespace tessaplot::geometry

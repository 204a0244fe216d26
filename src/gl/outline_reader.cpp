#include "gl/outline_reader.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include FT_OUTLINE_H

namespace tessaplot::gl {

namespace {

using Contour = std::vector<OutlinePoint>;

/// Draws an outline of FreeType as short lines.
class OutlineReader {
 public:
    explicit OutlineReader(double unitsPerEm) : unitsPerEm_(unitsPerEm) {}

    std::vector<Contour> read(FT_Outline& source);

 private:
    static OutlineReader& of(void* user) { return *static_cast<OutlineReader*>(user); }
    static int moveTo(const FT_Vector* to, void* user);
    static int lineTo(const FT_Vector* to, void* user);
    static int conicTo(const FT_Vector* control, const FT_Vector* to, void* user);
    static int cubicTo(const FT_Vector* control1, const FT_Vector* control2, const FT_Vector* to, void* user);

    OutlinePoint point(const FT_Vector& v) const {
        return {static_cast<double>(v.x) / unitsPerEm_, static_cast<double>(v.y) / unitsPerEm_};
    }
    void append(const OutlinePoint& p);
    void closeContour();

    double unitsPerEm_;
    std::vector<Contour> contours_;
    Contour contour_;  ///< The one that is being drawn.
    OutlinePoint at_{};
};

/// The lines stay within this distance, in em squares, of the curve that they stand for.
constexpr double tolerance = 0.003;

/// How many lines a curve needs that strays by `deviation` from its chord.
int linesFor(double deviation) {
    return std::max(1, static_cast<int>(std::ceil(std::sqrt(deviation / tolerance))));
}

/// How far the middle one of three points is from a straight, even course.
double bend(const OutlinePoint& a, const OutlinePoint& b, const OutlinePoint& c) {
    return std::hypot(a[0] - 2 * b[0] + c[0], a[1] - 2 * b[1] + c[1]);
}

/// True for points that 32-bit floats might not tell apart.
bool coincide(const OutlinePoint& a, const OutlinePoint& b) {
    constexpr double nothing = 1e-6;
    return std::hypot(a[0] - b[0], a[1] - b[1]) < nothing;
}

int OutlineReader::moveTo(const FT_Vector* to, void* user) {
    of(user).closeContour();
    of(user).append(of(user).point(*to));
    return 0;
}

int OutlineReader::lineTo(const FT_Vector* to, void* user) {
    of(user).append(of(user).point(*to));
    return 0;
}

int OutlineReader::conicTo(const FT_Vector* control, const FT_Vector* to, void* user) {
    OutlineReader& self = of(user);
    const OutlinePoint p0 = self.at_;
    const OutlinePoint p1 = self.point(*control);
    const OutlinePoint p2 = self.point(*to);
    const int lines = linesFor(bend(p0, p1, p2) / 4);
    for (int i = 1; i <= lines; ++i) {
        const double t = static_cast<double>(i) / lines;
        const double s = 1 - t;
        self.append(
            {s * s * p0[0] + 2 * s * t * p1[0] + t * t * p2[0], s * s * p0[1] + 2 * s * t * p1[1] + t * t * p2[1]});
    }
    return 0;
}

int OutlineReader::cubicTo(const FT_Vector* control1, const FT_Vector* control2, const FT_Vector* to, void* user) {
    OutlineReader& self = of(user);
    const OutlinePoint p0 = self.at_;
    const OutlinePoint p1 = self.point(*control1);
    const OutlinePoint p2 = self.point(*control2);
    const OutlinePoint p3 = self.point(*to);
    const int lines = linesFor(std::max(bend(p0, p1, p2), bend(p1, p2, p3)) * 3 / 4);
    for (int i = 1; i <= lines; ++i) {
        const double t = static_cast<double>(i) / lines;
        const double s = 1 - t;
        const auto at = [&](std::size_t k) {
            return s * s * s * p0[k] + 3 * s * s * t * p1[k] + 3 * s * t * t * p2[k] + t * t * t * p3[k];
        };
        self.append({at(0), at(1)});
    }
    return 0;
}

void OutlineReader::append(const OutlinePoint& p) {
    if (contour_.empty() || !coincide(contour_.back(), p)) contour_.push_back(p);
    at_ = p;
}

/// Contours without an area are left out.
void OutlineReader::closeContour() {
    while (contour_.size() > 1 && coincide(contour_.back(), contour_.front()))
        contour_.pop_back();
    if (contour_.size() > 2) contours_.push_back(std::move(contour_));
    contour_.clear();
}

std::vector<Contour> OutlineReader::read(FT_Outline& source) {
    FT_Outline_Funcs calls{};
    calls.move_to = moveTo;
    calls.line_to = lineTo;
    calls.conic_to = conicTo;
    calls.cubic_to = cubicTo;
    if (FT_Outline_Decompose(&source, &calls, this) != 0) return {};
    closeContour();
    if (FT_Outline_Get_Orientation(&source) == FT_ORIENTATION_TRUETYPE)
        for (Contour& contour : contours_)
            std::reverse(contour.begin(), contour.end());
    return std::move(contours_);
}

}  // namespace

std::vector<std::vector<OutlinePoint>> contoursOf(FT_Outline& outline, double unitsPerEm) {
    return OutlineReader(unitsPerEm).read(outline);
}

}  // namespace tessaplot::gl

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "scene/axis_parts.h"
#include "scene/axis_scale.h"

namespace tessaplot::scene {

namespace {

/// The rectangle stands off the box by this.
constexpr double standOff = 0.04;
constexpr double tickLength = 0.2;
constexpr base::PackedColor nearBlack = base::packColor(20, 20, 20);
/// Half the height of a digit.
constexpr double halfDigit = 0.2;
constexpr TextRotation level{0, 0, 1, 0};
constexpr TextRotation upward{90, 0, 0, 1};

/// A number beside one side of the rectangle, at a coordinate of the box.
struct Mark {
    double position = 0;
    std::string label;
};

std::optional<AxisTicks> ticksOf(double min, double max) {
    if (min >= max) return std::nullopt;
    return Cls3::Coord(min, max);
}

/// The marks of an axis that runs over `min` to `max` of the box. A data range of nothing has none.
std::vector<Mark> marksOf(double min, double max, double scale) {
    const std::optional<AxisTicks> ticks = ticksOf(min * scale, max * scale);
    if (!ticks) return {};
    constexpr double roundingOfRange = 1e-9;
    const double end = max + standOff + (max - min) * roundingOfRange;
    const int digits = digitsOfStep(ticks->step);
    std::vector<Mark> marks;
    for (int i = 0; i <= ticks->count; ++i) {
        const double value = ticks->first + i * ticks->step;
        const double position = value / scale;
        if (position <= end) marks.push_back({position, labelText(value, digits)});
    }
    return marks;
}

/// Emits the rectangle of a 2D scene with its numbers. In it the box's z runs across and its x up.
class FlatFrame {
 public:
    explicit FlatFrame(const AxisDrawing& drawing);

    void ticks() const;
    void rectangle() const;
    void labels() const;
    void titles() const;

 private:
    void vertex(double across, double up) const {
        drawing_.list.glVertex3d(across - drawing_.scene.SceneCenterZ, up - drawing_.scene.SceneCenterX, depth_);
    }
    void boldText(GLuint font, const std::string& text, double across, double up, const TextRotation& rotation) const;

    const AxisDrawing& drawing_;
    double depth_;
    double left_;
    double right_;
    double bottom_;
    double top_;
    std::vector<Mark> acrossMarks_;
    std::vector<Mark> upMarks_;
};

FlatFrame::FlatFrame(const AxisDrawing& drawing)
    : drawing_(drawing),
      depth_(drawing.box.MinY - drawing.scene.SceneCenterY),
      left_(drawing.box.MinZ - standOff),
      right_(drawing.box.MaxZ + standOff),
      bottom_(drawing.box.MinX - standOff),
      top_(drawing.box.MaxX + standOff),
      acrossMarks_(marksOf(drawing.box.MinZ, drawing.box.MaxZ, drawing.scales.ScaleX)),
      upMarks_(marksOf(drawing.box.MinX, drawing.box.MaxX, drawing.scales.ScaleY)) {}

void FlatFrame::ticks() const {
    drawing_.list.glLineWidth(1);
    drawing_.list.glColor3f(0, 0, 0);
    drawing_.list.glBegin(GL_LINES);
    for (const Mark& mark : upMarks_) {
        vertex(left_ + standOff, mark.position);
        vertex(left_ - tickLength, mark.position);
    }
    for (const Mark& mark : acrossMarks_) {
        vertex(mark.position, bottom_ + standOff);
        vertex(mark.position, bottom_ - tickLength);
    }
    drawing_.list.glEnd();
}

void FlatFrame::rectangle() const {
    drawing_.list.glLineWidth(static_cast<float>(drawing_.axis.AxisWidth));
    SetGLColor(drawing_.list, drawing_.axis.AxisColor);
    drawing_.list.glBegin(GL_LINES);
    vertex(left_, bottom_);
    vertex(right_, bottom_);
    vertex(right_, bottom_);
    vertex(right_, top_);
    vertex(right_, top_);
    vertex(left_, top_);
    vertex(left_, top_);
    vertex(left_, bottom_);
    drawing_.list.glEnd();
}

/// Drawn over and over, a hair aside, a text reads bolder.
void FlatFrame::boldText(GLuint font, const std::string& text, double across, double up,
                         const TextRotation& rotation) const {
    constexpr int times = 5;
    constexpr double shift = 0.001;
    for (int i = 0; i < times; ++i)
        DrawText3D(drawing_.list, font, text, across - drawing_.scene.SceneCenterZ + i * shift,
                   up - drawing_.scene.SceneCenterX + i * shift, depth_, rotation, nearBlack);
}

void FlatFrame::labels() const {
    for (const Mark& mark : upMarks_)
        boldText(FontList3, mark.label, left_ - (textWidth(mark.label) + 0.55), mark.position - halfDigit, level);
    for (const Mark& mark : acrossMarks_) {
        const double shift = 0.15 * static_cast<double>(std::min<std::size_t>(mark.label.size(), 3));
        boldText(FontList3, mark.label, mark.position - shift, bottom_ - 0.8, level);
    }
}

void FlatFrame::titles() const {
    const Cls1& b = drawing_.box;
    const std::string& titleX = drawing_.axis.TitleX;
    const std::string& titleY = drawing_.axis.TitleY;
    boldText(FontList5, titleX, b.MinZ + (b.MaxZ - b.MinZ - textWidth(titleX)) / 2, bottom_ - 1.7, level);
    boldText(FontList5, titleY, left_ - 2.3, b.MinX + (b.MaxX - b.MinX - textWidth(titleY)) / 2, upward);
}

}  // namespace

void emitFlatFrame(const AxisDrawing& drawing) {
    const FlatFrame frame(drawing);
    drawing.list.glDisable(GL_LIGHTING);
    frame.ticks();
    frame.rectangle();
    frame.labels();
    frame.titles();
    drawing.list.glEnable(GL_LIGHTING);
}

}  // namespace tessaplot::scene

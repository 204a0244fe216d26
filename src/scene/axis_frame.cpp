#include <string>
#include <vector>

#include "base/failure.h"
#include "scene/axis_parts.h"
#include "scene/axis_scale.h"
#include "scene/material.h"

namespace tessaplot::scene {

namespace {

/// The room between data and box, which labels leave out.
constexpr double margin = 0.04;
constexpr double tickLength = 0.3;
constexpr int neon = 5;
constexpr base::PackedColor blue = 0xff0000;
constexpr TextRotation alongX{0, 0, 1, 0};
constexpr TextRotation downward{-90, 0, 0, 1};
constexpr TextRotation againstZ{90, 0, 1, 0};

/// How one of the user's axes is divided. Grid lines divide the box, labels the data inside of it.
struct Division {
    int intervals = 0;
    double minimum = 0;
    double gridSpacing = 0;
    double labelSpacing = 0;
    std::vector<std::string> labels;

    double gridAt(int i) const { return minimum + i * gridSpacing; }
    double labelAt(int i) const { return minimum + i * labelSpacing; }
    const std::string& label(int i) const { return labels[static_cast<std::size_t>(i)]; }
};

void requireIntervals(char axis, int intervals) {
    const std::string subject = std::string("The ") + axis + " axis ";
    if (intervals == 0)
        throw base::Failure(base::FailureCode::DivisionByZero,
                            subject + "has 0 intervals: its range cannot be divided by zero.");
    if (intervals > Cls3::mostIntervals)
        throw base::Failure(base::FailureCode::SubscriptOutOfRange,
                            subject + "has " + std::to_string(intervals) + " intervals; at most " +
                                std::to_string(Cls3::mostIntervals) + " can be labelled.");
}

Division divide(char axis, int intervals, double minimum, double maximum, double scale) {
    requireIntervals(axis, intervals);
    const double range = maximum - minimum;
    Division division{intervals, minimum, range / intervals, (range - 2 * margin) / intervals, {}};
    for (int i = 0; i <= intervals; ++i)
        division.labels.push_back(labelText((i * division.labelSpacing + minimum + margin) * scale, 1));
    return division;
}

/// Emits the frame of panels, grid lines and labels of one box.
class Frame {
 public:
    explicit Frame(const AxisDrawing& drawing);

    void panels() const;
    void edges() const;
    void gridLines() const;
    void ticks() const;
    void labels() const;

 private:
    /// Emits a block of lines for a family of grid lines; `line` gives the two ends for number i.
    template <class Line>
    void family(bool shown, base::PackedColor color, const Division& across, Line&& line) const;

    void beginPanels() const;
    void panelSurface(base::PackedColor color, int material) const;
    void labelsOfY() const;
    void labelsOfZ() const;
    void labelsOfX() const;

    const AxisDrawing& drawing_;
    const Cls3& axis_;
    const Cls1& box_;
    gl::DisplayList& list_;
    Division x_;
    Division y_;
    Division z_;
};

Frame::Frame(const AxisDrawing& drawing)
    : drawing_(drawing),
      axis_(drawing.axis),
      box_(drawing.box),
      list_(drawing.list),
      x_(divide('X', axis_.LabelNumX, box_.MinZ, box_.MaxZ, drawing.scales.ScaleX)),
      y_(divide('Y', axis_.LabelNumY, box_.MinX, box_.MaxX, drawing.scales.ScaleY)),
      z_(divide('Z', axis_.LabelNumZ, box_.MinY, box_.MaxY, drawing.scales.ScaleZ)) {}

void Frame::panels() const {
    if (!axis_.ShowYZPanel && !axis_.ShowXZPanel && !axis_.ShowXYPanel) return;
    beginPanels();
    const Cls1& b = box_;
    if (axis_.ShowYZPanel) {
        panelSurface(axis_.YZPanelColor, axis_.YZPanelMaterial);
        list_.glBegin(GL_QUADS);
        list_.glNormal3d(0, 0, 1);
        drawing_.vertex(b.MinX, b.MinY, b.MinZ);
        drawing_.vertex(b.MaxX, b.MinY, b.MinZ);
        drawing_.vertex(b.MaxX, b.MaxY, b.MinZ);
        drawing_.vertex(b.MinX, b.MaxY, b.MinZ);
        list_.glEnd();
    }
    if (axis_.ShowXZPanel) {
        panelSurface(axis_.XZPanelColor, axis_.XZPanelMaterial);
        list_.glBegin(GL_QUADS);
        list_.glNormal3d(1, 0, 0);
        drawing_.vertex(b.MinX, b.MinY, b.MaxZ);
        drawing_.vertex(b.MinX, b.MinY, b.MinZ);
        drawing_.vertex(b.MinX, b.MaxY, b.MinZ);
        drawing_.vertex(b.MinX, b.MaxY, b.MaxZ);
        list_.glEnd();
    }
    if (axis_.ShowXYPanel) {
        panelSurface(axis_.XYPanelColor, axis_.XYPanelMaterial);
        list_.glBegin(GL_QUADS);
        list_.glNormal3d(0, 1, 0);
        drawing_.vertex(b.MinX, b.MinY, b.MinZ);
        drawing_.vertex(b.MinX, b.MinY, b.MaxZ);
        drawing_.vertex(b.MaxX, b.MinY, b.MaxZ);
        drawing_.vertex(b.MaxX, b.MinY, b.MinZ);
        list_.glEnd();
    }
    list_.glPopAttrib();
}

/// Panels are filled whatever the last graph was, and give way to the lines that lie on them.
void Frame::beginPanels() const {
    list_.glPushAttrib(GL_POLYGON_BIT);
    list_.glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    list_.glEnable(GL_POLYGON_OFFSET_FILL);
    list_.glPolygonOffset(1, 1);
    list_.glEnable(GL_LIGHTING);
}

/// The colour is the diffuse light of the material, whatever the last graph let colours be.
void Frame::panelSurface(base::PackedColor color, int material) const {
    list_.glEnable(GL_COLOR_MATERIAL);
    list_.glColorMaterial(GL_FRONT_AND_BACK, material == neon ? GL_EMISSION : GL_DIFFUSE);
    Cls11().SetMaterial(list_, material);
    SetGLColor(list_, color);
}

/// The three edges that meet where all minima do.
void Frame::edges() const {
    const Cls1& b = box_;
    list_.glColor3f(0, 0, 0);
    list_.glBegin(GL_LINES);
    drawing_.vertex(b.MinX, b.MinY, b.MinZ);
    drawing_.vertex(b.MinX, b.MinY, b.MaxZ);
    drawing_.vertex(b.MinX, b.MinY, b.MinZ);
    drawing_.vertex(b.MaxX, b.MinY, b.MinZ);
    drawing_.vertex(b.MinX, b.MinY, b.MinZ);
    drawing_.vertex(b.MinX, b.MaxY, b.MinZ);
    list_.glEnd();
}

template <class Line>
void Frame::family(bool shown, base::PackedColor color, const Division& across, Line&& line) const {
    if (!shown) return;
    SetGLColor(list_, color);
    list_.glBegin(GL_LINES);
    for (int i = 0; i <= across.intervals; ++i)
        line(across.gridAt(i));
    list_.glEnd();
}

/// A family bears the name of the axis that its lines run along.
void Frame::gridLines() const {
    const Cls1& b = box_;
    family(axis_.ShowYZYGrid, axis_.YZGridColor, z_, [&](double y) {
        drawing_.vertex(b.MinX, y, b.MinZ);
        drawing_.vertex(b.MaxX, y, b.MinZ);
    });
    family(axis_.ShowYZZGrid, axis_.YZGridColor, y_, [&](double x) {
        drawing_.vertex(x, b.MinY, b.MinZ);
        drawing_.vertex(x, b.MaxY, b.MinZ);
    });
    family(axis_.ShowXZXGrid, axis_.XZGridColor, z_, [&](double y) {
        drawing_.vertex(b.MinX, y, b.MinZ);
        drawing_.vertex(b.MinX, y, b.MaxZ);
    });
    family(axis_.ShowXZZGrid, axis_.XZGridColor, x_, [&](double z) {
        drawing_.vertex(b.MinX, b.MinY, z);
        drawing_.vertex(b.MinX, b.MaxY, z);
    });
    family(axis_.ShowXYXGrid, axis_.XYGridColor, y_, [&](double x) {
        drawing_.vertex(x, b.MinY, b.MinZ);
        drawing_.vertex(x, b.MinY, b.MaxZ);
    });
    family(axis_.ShowXYYGrid, axis_.XYGridColor, x_, [&](double z) {
        drawing_.vertex(b.MinX, b.MinY, z);
        drawing_.vertex(b.MaxX, b.MinY, z);
    });
}

/// Each tick lies in the plane of its label and points at it.
void Frame::ticks() const {
    const Cls1& b = box_;
    list_.glColor3f(0, 0, 0);
    list_.glBegin(GL_LINES);
    for (int i = 0; i <= y_.intervals; ++i) {
        drawing_.vertex(y_.gridAt(i), b.MinY, b.MaxZ);
        drawing_.vertex(y_.gridAt(i), b.MinY - tickLength, b.MaxZ);
    }
    for (int i = 0; i <= z_.intervals; ++i) {
        drawing_.vertex(b.MinX, z_.gridAt(i), b.MaxZ);
        drawing_.vertex(b.MinX - tickLength, z_.gridAt(i), b.MaxZ);
    }
    for (int i = 0; i <= x_.intervals; ++i) {
        drawing_.vertex(b.MaxX, b.MinY, x_.gridAt(i));
        drawing_.vertex(b.MaxX, b.MinY - tickLength, x_.gridAt(i));
    }
    list_.glEnd();
}

void Frame::labels() const {
    labelsOfY();
    labelsOfZ();
    labelsOfX();
}

void Frame::labelsOfY() const {
    const Cls1& b = box_;
    for (int i = 0; i <= y_.intervals; ++i)
        drawing_.text(FontList3, y_.label(i), y_.labelAt(i) - 1, b.MinY - 1, b.MaxZ, alongX, blue);
    const double c = b.MinX + (b.MaxX - b.MinX - textWidth(axis_.TitleY)) / 2;
    drawing_.text(FontList5, axis_.TitleY, c - 1, b.MinY - 2, b.MaxZ, alongX, blue);
}

void Frame::labelsOfZ() const {
    const Cls1& b = box_;
    constexpr double gap = 1.2;
    double a = b.MinX - gap;
    for (int i = 0; i <= z_.intervals; ++i) {
        a = b.MinX - (textWidth(z_.label(i)) + gap);
        drawing_.text(FontList3, z_.label(i), a, z_.labelAt(i), b.MaxZ, alongX, blue);
    }
    const double w = textWidth(axis_.TitleZ);
    const double c = b.MinY + (b.MaxY - b.MinY - w) / 2;
    drawing_.text(FontList5, axis_.TitleZ, a - 1, c + w, b.MaxZ, downward, blue);
}

void Frame::labelsOfX() const {
    const Cls1& b = box_;
    for (int i = 0; i <= x_.intervals; ++i)
        drawing_.text(FontList3, x_.label(i), b.MaxX, b.MinY - 1, x_.labelAt(i), againstZ, blue);
    const double w = textWidth(axis_.TitleX);
    const double c = b.MinZ + (b.MaxZ - b.MinZ - w) / 2;
    drawing_.text(FontList5, axis_.TitleX, b.MaxX, b.MinY - 2, c + w - 0.5, againstZ, blue);
}

}  // namespace

void emitFrame(const AxisDrawing& drawing) {
    gl::DisplayList& list = drawing.list;
    const Frame frame(drawing);
    frame.panels();
    list.glDisable(GL_LIGHTING);
    beginSmoothLines(list);
    list.glLineWidth(1);
    frame.edges();
    frame.gridLines();
    frame.ticks();
    endSmoothLines(list);
    frame.labels();
    list.glEnable(GL_LIGHTING);
}

}  // namespace tessaplot::scene

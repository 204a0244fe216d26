#include "ui/slice_controls.h"

#include <algorithm>
#include <iterator>

#include "base/number_text.h"
#include "ui/control_makers.h"
#include "ui/number_box.h"

namespace tessaplot::ui {

namespace {

using Slice = graphs::SliceSet::Slice;

constexpr std::array<std::string_view, 3> axisNames{"X", "Y", "Z"};
/// The two axes of the plane of a slice, in the order of its limits.
constexpr std::array<std::array<int, 2>, 3> planeAxes{{{1, 2}, {0, 2}, {0, 1}}};
constexpr std::array<int Slice::*, 4> limitsOf{&Slice::FirstBegin, &Slice::FirstEnd, &Slice::SecondBegin,
                                               &Slice::SecondEnd};
constexpr std::string_view startText = "30";

std::string_view nameOf(int axis) {
    return axisNames[static_cast<std::size_t>(axis)];
}

/// The axis along which limit 0 to 3 of a slice across `axis` counts.
int axisOfLimit(int axis, int limit) {
    return planeAxes[static_cast<std::size_t>(axis)][static_cast<std::size_t>(limit) / 2];
}

/// The text that a box starts with: the usual one, unless the data make no sense of it.
std::string startOr(double other, const std::optional<Range>& allowed) {
    if (!allowed || allowed->contains(base::TextValue(startText))) return std::string(startText);
    return proposedText(other);
}

}  // namespace

std::string numbered(std::string_view kind, int number) {
    return std::string(kind) + std::to_string(number);
}

SliceControls::Names SliceControls::namesFor(int axis) {
    Names names;
    names.position = numbered("Text", 2 * axis + 1);
    names.interval = numbered("Text", 2 * axis + 2);
    names.color = numbered("Check", 3 * axis + 1);
    names.contours = numbered("Check", 3 * axis + 2);
    names.vectors = numbered("Check", 3 * axis + 3);
    names.contourColor = numbered("Picture", 2 * axis + 1);
    names.vectorColor = numbered("Picture", 2 * axis + 2);
    names.slider = numbered("Slider", axis + 1);
    for (std::size_t i = 0; i < names.limits.size(); ++i)
        names.limits[i] = numbered("Text", 4 * axis + 7 + static_cast<int>(i));
    return names;
}

SliceControls::SliceControls(Form& form, const platform::Desktop& desktop, int axis, const PanelRanges* ranges)
    : form_(form), desktop_(desktop), axis_(axis), ranges_(ranges), names_(namesFor(axis)) {}

std::vector<Frame> SliceControls::frames() const {
    return {{"Slice",
             {{names_.position, names_.slider},
              {names_.color},
              {names_.contours, names_.interval, names_.contourColor},
              {names_.vectors, names_.vectorColor}}},
            {"Limits", {{names_.limits[0], names_.limits[1]}, {names_.limits[2], names_.limits[3]}}}};
}

std::string_view SliceControls::axisName() const {
    return nameOf(axis_);
}

std::optional<Range> SliceControls::span() const {
    if (!ranges_) return std::nullopt;
    return std::array{ranges_->x, ranges_->y, ranges_->z}[static_cast<std::size_t>(axis_)];
}

int SliceControls::nodesAlong(int limit) const {
    return ranges_ ? ranges_->nodes[static_cast<std::size_t>(axisOfLimit(axis_, limit))] : 0;
}

std::vector<Control> SliceControls::controls() const {
    std::vector<Control> all = lookControls();
    std::ranges::move(placeControls(), std::back_inserter(all));
    std::ranges::move(limitControls(), std::back_inserter(all));
    return all;
}

std::vector<Control> SliceControls::lookControls() const {
    const std::optional<Range> steps =
        ranges_ ? std::optional(Range{0, ranges_->value.upper - ranges_->value.lower}) : std::nullopt;
    Control interval = textBox(names_.interval, "Interval", startOr(ranges_ ? roundStep(ranges_->value) : 1, steps));
    interval.hint = "The step between the contours";
    Control contourColor = colorBox(names_.contourColor, "Color", 0);
    Control vectorColor = colorBox(names_.vectorColor, "Color", 0);
    interval.enabled = contourColor.enabled = vectorColor.enabled = false;
    return {checkBox(names_.color, "Show Color", true),
            checkBox(names_.contours, "Show Contours", false),
            interval,
            contourColor,
            checkBox(names_.vectors, "Show Vectors", false),
            vectorColor};
}

std::vector<Control> SliceControls::placeControls() const {
    const std::optional<Range> along = span();
    Control position = textBox(names_.position, "Position", startOr(along ? along->middle() : 0, along));
    position.hint = "In the units of the data";
    Control slider;
    slider.kind = ControlKind::Slider;
    slider.name = names_.slider;
    slider.enabled = along.has_value();
    if (along) {
        slider.minimum = along->lower;
        slider.maximum = along->upper;
        slider.value = base::TextValue(position.text);
    }
    return {position, slider};
}

std::vector<Control> SliceControls::limitControls() const {
    std::vector<Control> controls;
    for (int i = 0; i < static_cast<int>(limitsOf.size()); ++i) {
        const bool first = i % 2 == 0;
        const int row = first ? 1 : nodesAlong(i);
        Control limit =
            textBox(names_.limits[static_cast<std::size_t>(i)], first ? "First row along " : "Last row along ",
                    ranges_ ? std::to_string(row) : std::string());
        limit.caption += nameOf(axisOfLimit(axis_, i));
        limit.enabled = ranges_ != nullptr;
        controls.push_back(std::move(limit));
    }
    return controls;
}

void SliceControls::changed(const Control& control) {
    if (control.name == names_.slider) form_.control(names_.position).text = proposedText(control.value);
    if (control.name == names_.contours)
        for (const std::string& name : {names_.interval, names_.contourColor})
            form_.control(name).enabled = control.on;
    if (control.name == names_.vectors) form_.control(names_.vectorColor).enabled = control.on;
}

void SliceControls::pressed(const Control& control) {
    if (control.name == names_.contourColor || control.name == names_.vectorColor)
        form_.control(control.name).color = desktop_.pickColor(control.color).value_or(control.color);
}

bool SliceControls::read(Slice& slice) const {
    return readPosition(slice) && readAllButPosition(slice);
}

bool SliceControls::readAllButPosition(Slice& slice) const {
    return readLook(slice) && readLimits(slice);
}

bool SliceControls::readPosition(Slice& slice) const {
    const std::optional<double> position = readNumber(form_.control(names_.position), desktop_);
    if (!position) return false;
    slice.Position = *position;
    const std::optional<Range> along = span();
    if (!along || along->contains(*position)) return true;
    tell(desktop_, "Error",
         "The position must lie in the range of the data, from " + base::generalText(along->lower) + " to " +
             base::generalText(along->upper) + ".");
    return false;
}

bool SliceControls::readLook(Slice& slice) const {
    slice.ShowColor = form_.control(names_.color).on;
    slice.ShowCont = form_.control(names_.contours).on;
    slice.ShowVect = form_.control(names_.vectors).on;
    slice.ContColor = form_.control(names_.contourColor).color;
    slice.VectColor = form_.control(names_.vectorColor).color;
    slice.ContLevels = 1;
    if (!slice.ShowCont) return true;
    const std::optional<double> interval = readNumber(form_.control(names_.interval), desktop_);
    if (!interval) return false;
    slice.ContLevels = *interval;
    if (*interval > 0) return true;
    tellIllegalData(desktop_);
    return false;
}

bool SliceControls::readLimits(Slice& slice) const {
    if (!ranges_) return true;
    for (std::size_t i = 0; i < limitsOf.size(); ++i) {
        const int last = nodesAlong(static_cast<int>(i));
        const std::string message =
            "The limits of a slice are numbers of rows of the data grid, here from 1 to " + std::to_string(last) + ".";
        const std::optional<int> limit = readCount(form_.control(names_.limits[i]), 1, last, message, desktop_);
        if (!limit) return false;
        slice.*limitsOf[i] = *limit;
    }
    if (slice.FirstBegin < slice.FirstEnd && slice.SecondBegin < slice.SecondEnd) return true;
    tell(desktop_, "Error", "The first row of a slice must stand before its last row.");
    return false;
}

void SliceControls::show(const Slice& slice) {
    form_.control(names_.position).text = proposedText(slice.Position);
    form_.control(names_.slider).value = slice.Position;
    form_.control(names_.color).on = slice.ShowColor;
    form_.control(names_.contours).on = slice.ShowCont;
    form_.control(names_.vectors).on = slice.ShowVect;
    if (slice.ShowCont) form_.control(names_.interval).text = proposedText(slice.ContLevels);
    form_.control(names_.contourColor).color = slice.ContColor;
    form_.control(names_.vectorColor).color = slice.VectColor;
    for (std::size_t i = 0; i < limitsOf.size() && ranges_; ++i)
        form_.control(names_.limits[i]).text = std::to_string(slice.*limitsOf[i]);
    changed(form_.control(names_.contours));
    changed(form_.control(names_.vectors));
}

}  // namespace tessaplot::ui

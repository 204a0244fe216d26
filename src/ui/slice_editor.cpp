#include "ui/slice_editor.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "base/number_text.h"
#include "ui/control_makers.h"
#include "ui/number_box.h"

namespace tessaplot::ui {

namespace {

using graphs::Cls9;
using graphs::SliceSet;

constexpr std::array<std::string_view, 3> axisNames{"X", "Y", "Z"};
constexpr std::array<SliceSet Cls9::*, 3> slicesOf{&Cls9::SlicesX, &Cls9::SlicesY, &Cls9::SlicesZ};
/// The two axes of the plane of a slice, in the order of its limits.
constexpr std::array<std::array<int, 2>, 3> planeAxes{{{1, 2}, {0, 2}, {0, 1}}};
constexpr std::array<int SliceSet::Slice::*, 4> limitsOf{&SliceSet::Slice::FirstBegin, &SliceSet::Slice::FirstEnd,
                                                         &SliceSet::Slice::SecondBegin, &SliceSet::Slice::SecondEnd};
constexpr std::string_view startText = "30";

std::string numbered(std::string_view kind, int number) {
    return std::string(kind) + std::to_string(number);
}

std::string_view nameOf(int axis) {
    return axisNames[static_cast<std::size_t>(axis)];
}

/// The text that a box starts with: the usual one, unless the data make no sense of it.
std::string startOr(double other, const std::optional<Range>& allowed) {
    const double start = base::TextValue(startText);
    if (!allowed || (start >= allowed->lower && start <= allowed->upper)) return std::string(startText);
    return proposedText(other);
}

double middle(const Range& range) {
    return (range.lower + range.upper) / 2;
}

}  // namespace

SliceEditor::Names SliceEditor::namesFor(int axis) {
    Names names;
    names.list = numbered("List", axis + 1);
    names.position = numbered("Text", 2 * axis + 1);
    names.interval = numbered("Text", 2 * axis + 2);
    names.color = numbered("Check", 3 * axis + 1);
    names.contours = numbered("Check", 3 * axis + 2);
    names.vectors = numbered("Check", 3 * axis + 3);
    names.contourColor = numbered("Picture", 2 * axis + 1);
    names.vectorColor = numbered("Picture", 2 * axis + 2);
    names.slider = numbered("Slider", axis + 1);
    names.add = numbered("Command", 2 * axis + 6);
    names.addEnds = numbered("Command", 2 * axis + 7);
    names.change = numbered("Command", axis + 12);
    names.remove = numbered("Command", axis + 15);
    for (std::size_t i = 0; i < names.limits.size(); ++i)
        names.limits[i] = numbered("Text", 4 * axis + 7 + static_cast<int>(i));
    return names;
}

SliceEditor::SliceEditor(Form& form, const platform::Desktop& desktop, int axis, const PanelRanges* ranges)
    : form_(form), desktop_(desktop), axis_(axis), ranges_(ranges), names_(namesFor(axis)) {}

Page SliceEditor::page() const {
    return {"Across " + std::string(nameOf(axis_)),
            {{"Slices", {{names_.list}, {names_.add, names_.addEnds, names_.change, names_.remove}}},
             {"Slice",
              {{names_.position, names_.slider},
               {names_.color},
               {names_.contours, names_.interval, names_.contourColor},
               {names_.vectors, names_.vectorColor}}},
             {"Limits", {{names_.limits[0], names_.limits[1]}, {names_.limits[2], names_.limits[3]}}}}};
}

std::optional<Range> SliceEditor::span() const {
    if (!ranges_) return std::nullopt;
    return std::array{ranges_->x, ranges_->y, ranges_->z}[static_cast<std::size_t>(axis_)];
}

int SliceEditor::nodesAlong(int limit) const {
    if (!ranges_) return 0;
    const int axis = planeAxes[static_cast<std::size_t>(axis_)][static_cast<std::size_t>(limit) / 2];
    return ranges_->nodes[static_cast<std::size_t>(axis)];
}

std::vector<Control> SliceEditor::controls() const {
    std::vector<Control> all = lookControls();
    std::ranges::move(placeControls(), std::back_inserter(all));
    all.push_back(button(names_.add, "Add"));
    all.push_back(button(names_.addEnds, "Add Ends"));
    all.back().hint = "Adds a slice at either end of the data";
    all.push_back(button(names_.change, "Change"));
    all.push_back(button(names_.remove, "Remove"));
    return all;
}

std::vector<Control> SliceEditor::lookControls() const {
    Control list = comboBox(names_.list, "Slices across " + std::string(nameOf(axis_)), {}, -1);
    list.kind = ControlKind::ListBox;
    const std::optional<Range> steps =
        ranges_ ? std::optional(Range{0, ranges_->value.upper - ranges_->value.lower}) : std::nullopt;
    Control interval = textBox(names_.interval, "Interval", startOr(ranges_ ? roundStep(ranges_->value) : 1, steps));
    interval.hint = "The step between the contours";
    Control contourColor = colorBox(names_.contourColor, "Color", 0);
    Control vectorColor = colorBox(names_.vectorColor, "Color", 0);
    interval.enabled = contourColor.enabled = vectorColor.enabled = false;
    return {list,
            checkBox(names_.color, "Show Color", true),
            checkBox(names_.contours, "Show Contours", false),
            interval,
            contourColor,
            checkBox(names_.vectors, "Show Vectors", false),
            vectorColor};
}

std::vector<Control> SliceEditor::placeControls() const {
    const std::optional<Range> along = span();
    Control position = textBox(names_.position, "Position", startOr(along ? middle(*along) : 0, along));
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
    std::vector<Control> controls{position, slider};
    for (std::size_t i = 0; i < names_.limits.size(); ++i) {
        const bool first = i % 2 == 0;
        const std::string_view axis = nameOf(planeAxes[static_cast<std::size_t>(axis_)][i / 2]);
        const int row = first ? 1 : nodesAlong(static_cast<int>(i));
        controls.push_back(textBox(names_.limits[i],
                                   (first ? "First row along " : "Last row along ") + std::string(axis),
                                   ranges_ ? std::to_string(row) : std::string()));
        controls.back().enabled = ranges_ != nullptr;
    }
    return controls;
}

void SliceEditor::changed(const Control& control) {
    if (control.name == names_.list) showSelected();
    if (control.name == names_.slider) form_.control(names_.position).text = proposedText(control.value);
    if (control.name == names_.contours)
        for (const std::string& name : {names_.interval, names_.contourColor})
            form_.control(name).enabled = control.on;
    if (control.name == names_.vectors) form_.control(names_.vectorColor).enabled = control.on;
}

void SliceEditor::pressed(const Control& control) {
    if (control.name == names_.add) add();
    if (control.name == names_.addEnds) addEnds();
    if (control.name == names_.change) change();
    if (control.name == names_.remove) remove();
    if (control.name == names_.contourColor || control.name == names_.vectorColor)
        form_.control(control.name).color = desktop_.pickColor(control.color).value_or(control.color);
}

void SliceEditor::store(Cls9& graph) const {
    SliceSet& set = graph.*slicesOf[static_cast<std::size_t>(axis_)];
    set.Num = static_cast<int>(slices_.size());
    for (int i = 1; i <= set.Num; ++i)
        set[i] = slices_[static_cast<std::size_t>(i) - 1];
}

bool SliceEditor::readPosition(Slice& slice) const {
    const std::optional<double> position = readNumber(form_.control(names_.position), desktop_);
    if (!position) return false;
    slice.Position = *position;
    const std::optional<Range> along = span();
    if (!along || (*position >= along->lower && *position <= along->upper)) return true;
    tell(desktop_, "Error",
         "The position must lie in the range of the data, from " + base::generalText(along->lower) + " to " +
             base::generalText(along->upper) + ".");
    return false;
}

bool SliceEditor::readLook(Slice& slice) const {
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

bool SliceEditor::readLimits(Slice& slice) const {
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

bool SliceEditor::hasRoomFor(std::size_t more) const {
    if (slices_.size() + more <= SliceSet::maximum) return true;
    tell(desktop_, "Error",
         "At most " + std::to_string(SliceSet::maximum) + " slices can stand across " + std::string(nameOf(axis_)) +
             ".");
    return false;
}

bool SliceEditor::hasSelection() const {
    if (form_.control(names_.list).selected >= 0) return true;
    tell(desktop_, "Note", "Select a slice first.");
    return false;
}

void SliceEditor::add() {
    Slice slice;
    if (!hasRoomFor(1) || !readPosition(slice) || !readLook(slice) || !readLimits(slice)) return;
    slices_.push_back(slice);
    showList(static_cast<int>(slices_.size()) - 1);
}

void SliceEditor::addEnds() {
    const std::optional<Range> along = span();
    if (!along) {
        tell(desktop_, "Note", "The range of the data is not known.");
        return;
    }
    Slice slice;
    if (!hasRoomFor(2) || !readLook(slice) || !readLimits(slice)) return;
    for (const double end : {along->lower, along->upper}) {
        slice.Position = end;
        slices_.push_back(slice);
    }
    showList(static_cast<int>(slices_.size()) - 1);
}

bool SliceEditor::storeMiddle(Cls9& graph) const {
    const std::optional<Range> along = span();
    if (!along) return true;
    Slice slice;
    if (!readLook(slice) || !readLimits(slice)) return false;
    slice.Position = middle(*along);
    SliceSet& set = graph.*slicesOf[static_cast<std::size_t>(axis_)];
    set.Num = 1;
    set[1] = slice;
    return true;
}

void SliceEditor::change() {
    Slice slice;
    if (!hasSelection() || !readPosition(slice) || !readLook(slice) || !readLimits(slice)) return;
    const int selected = form_.control(names_.list).selected;
    slices_.at(static_cast<std::size_t>(selected)) = slice;
    showList(selected);
}

void SliceEditor::remove() {
    if (!hasSelection()) return;
    const int selected = form_.control(names_.list).selected;
    slices_.erase(slices_.begin() + selected);
    showList(std::min(selected, static_cast<int>(slices_.size()) - 1));
}

std::string SliceEditor::describe(const Slice& slice) const {
    std::string text = std::string(nameOf(axis_)) + " = " + base::generalText(slice.Position);
    if (slice.ShowColor) text += ", color";
    if (slice.ShowCont) text += ", contours every " + base::generalText(slice.ContLevels);
    if (slice.ShowVect) text += ", vectors";
    return text;
}

void SliceEditor::showList(int selected) {
    Control& list = form_.control(names_.list);
    list.items.clear();
    for (const Slice& slice : slices_)
        list.items.push_back({describe(slice)});
    list.selected = selected;
    showSelected();
}

void SliceEditor::showSelected() {
    const int selected = form_.control(names_.list).selected;
    if (selected < 0) return;
    const Slice& slice = slices_.at(static_cast<std::size_t>(selected));
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

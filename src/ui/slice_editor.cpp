#include "ui/slice_editor.h"

#include <algorithm>
#include <iterator>

#include "base/number_text.h"
#include "ui/control_makers.h"
#include "ui/number_box.h"

namespace tessaplot::ui {

namespace {

using graphs::Cls9;
using graphs::SliceSet;

SliceSet& slicesAcross(Cls9& graph, int axis) {
    constexpr std::array<SliceSet Cls9::*, 3> sets{&Cls9::SlicesX, &Cls9::SlicesY, &Cls9::SlicesZ};
    return graph.*sets[static_cast<std::size_t>(axis)];
}

}  // namespace

SliceEditor::Names SliceEditor::namesFor(int axis) {
    return {.list = numbered("List", axis + 1),
            .add = numbered("Command", 2 * axis + 6),
            .addEnds = numbered("Command", 2 * axis + 7),
            .change = numbered("Command", axis + 12),
            .remove = numbered("Command", axis + 15)};
}

SliceEditor::SliceEditor(Form& form, const platform::Desktop& desktop, int axis, const PanelRanges* ranges)
    : form_(form), desktop_(desktop), axis_(axis), names_(namesFor(axis)), one_(form, desktop, axis, ranges) {}

Page SliceEditor::page() const {
    Page page{"Across " + std::string(one_.axisName()),
              {{"Slices", {{names_.list}, {names_.add, names_.addEnds, names_.change, names_.remove}}}}};
    std::ranges::move(one_.frames(), std::back_inserter(page.frames));
    return page;
}

std::vector<Control> SliceEditor::controls() const {
    Control list = comboBox(names_.list, "Slices across " + std::string(one_.axisName()), {}, -1);
    list.kind = ControlKind::ListBox;
    std::vector<Control> all{std::move(list)};
    std::ranges::move(one_.controls(), std::back_inserter(all));
    all.push_back(button(names_.add, "Add"));
    all.push_back(button(names_.addEnds, "Add Ends"));
    all.back().hint = "Adds a slice at either end of the data";
    all.push_back(button(names_.change, "Change"));
    all.push_back(button(names_.remove, "Remove"));
    return all;
}

void SliceEditor::changed(const Control& control) {
    if (control.name == names_.list) showSelected();
    one_.changed(control);
}

void SliceEditor::pressed(const Control& control) {
    if (control.name == names_.add) add();
    if (control.name == names_.addEnds) addEnds();
    if (control.name == names_.change) change();
    if (control.name == names_.remove) remove();
    one_.pressed(control);
}

void SliceEditor::store(Cls9& graph) const {
    SliceSet& set = slicesAcross(graph, axis_);
    set.Num = static_cast<int>(slices_.size());
    for (int i = 1; i <= set.Num; ++i)
        set[i] = slices_[static_cast<std::size_t>(i) - 1];
}

bool SliceEditor::hasRoomFor(std::size_t more) const {
    if (slices_.size() + more <= SliceSet::maximum) return true;
    tell(desktop_, "Error",
         "At most " + std::to_string(SliceSet::maximum) + " slices can stand across " + std::string(one_.axisName()) +
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
    if (!hasRoomFor(1) || !one_.read(slice)) return;
    slices_.push_back(slice);
    showList(static_cast<int>(slices_.size()) - 1);
}

void SliceEditor::addEnds() {
    const std::optional<Range> along = one_.span();
    if (!along) {
        tell(desktop_, "Note", "The range of the data is not known.");
        return;
    }
    Slice slice;
    if (!hasRoomFor(2) || !one_.readAllButPosition(slice)) return;
    for (const double end : {along->lower, along->upper}) {
        slice.Position = end;
        slices_.push_back(slice);
    }
    showList(static_cast<int>(slices_.size()) - 1);
}

bool SliceEditor::storeMiddle(Cls9& graph) const {
    const std::optional<Range> along = one_.span();
    if (!along) return true;
    Slice slice;
    if (!one_.readAllButPosition(slice)) return false;
    slice.Position = along->middle();
    SliceSet& set = slicesAcross(graph, axis_);
    set.Num = 1;
    set[1] = slice;
    return true;
}

void SliceEditor::change() {
    Slice slice;
    if (!hasSelection() || !one_.read(slice)) return;
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
    std::string text = std::string(one_.axisName()) + " = " + base::generalText(slice.Position);
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
    if (selected >= 0) one_.show(slices_.at(static_cast<std::size_t>(selected)));
}

}  // namespace tessaplot::ui

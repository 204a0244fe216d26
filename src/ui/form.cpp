#include "ui/form.h"

#include <algorithm>
#include <utility>

#include "base/failure.h"

namespace tessaplot::ui {

Form::Form(std::string name, std::string caption) : name_(std::move(name)), caption_(std::move(caption)) {}

const Control& Form::control(std::string_view name) const {
    const auto found = std::ranges::find(controls_, name, &Control::name);
    if (found == controls_.end())
        throw base::Failure(base::FailureCode::SubscriptOutOfRange,
                            "The form " + name_ + " has no control \"" + std::string(name) + "\".");
    return *found;
}

Control& Form::control(std::string_view name) {
    return const_cast<Control&>(std::as_const(*this).control(name));
}

Control& Form::add(Control control) {
    return controls_.emplace_back(std::move(control));
}

void Form::addPage(Page page) {
    pages_.push_back(std::move(page));
}

void Form::nameButtons(std::string ok, std::string cancel) {
    okName_ = std::move(ok);
    cancelName_ = std::move(cancel);
}

Control* Form::usable(std::string_view name) {
    Control& found = control(name);
    return open_ && found.enabled && found.visible ? &found : nullptr;
}

void Form::setText(std::string_view name, std::string_view text) {
    Control* box = usable(name);
    if (!box || box->text == text) return;
    box->text = text;
    changed(*box);
}

void Form::setOn(std::string_view name, bool on) {
    Control* button = usable(name);
    if (!button || button->on == on) return;
    if (button->kind == ControlKind::OptionButton) {
        if (!on) return;
        switchOffOthers(*button);
    }
    button->on = on;
    changed(*button);
}

void Form::switchOffOthers(const Control& chosen) {
    for (const Page& page : pages_)
        for (const Frame& frame : page.frames) {
            const auto holds = [&](const auto& row) { return std::ranges::find(row, chosen.name) != row.end(); };
            if (std::ranges::none_of(frame.rows, holds)) continue;
            for (const auto& row : frame.rows)
                for (const std::string& name : row)
                    if (Control& other = control(name); other.kind == ControlKind::OptionButton) other.on = false;
        }
}

void Form::select(std::string_view name, int entry) {
    Control* list = usable(name);
    if (!list || entry < 0 || entry >= static_cast<int>(list->items.size()) || list->selected == entry) return;
    list->selected = entry;
    changed(*list);
}

void Form::slide(std::string_view name, double value) {
    Control* slider = usable(name);
    if (!slider) return;
    const double kept = std::clamp(value, slider->minimum, slider->maximum);
    if (slider->value == kept) return;
    slider->value = kept;
    changed(*slider);
}

void Form::click(std::string_view name) {
    if (Control* button = usable(name)) pressed(*button);
}

void Form::accept() {
    if (open_) ok();
}

void Form::cancel() {
    if (!open_) return;
    dismissed();
    close();
}

void Form::changed(Control&) {}

void Form::pressed(Control&) {}

void Form::dismissed() {}

}  // namespace tessaplot::ui

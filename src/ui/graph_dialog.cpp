#include "ui/graph_dialog.h"

#include <algorithm>
#include <string>
#include <utility>

#include "base/color.h"
#include "base/failure.h"
#include "graphs/surface_fill.h"
#include "ui/gridding_box.h"
#include "ui/number_box.h"

namespace tessaplot::ui {

namespace {

using base::Failure;
using base::FailureCode;
using graphs::Cls9;

constexpr std::string_view griddingName = "GridMethod";

/// Sets a flag for its own life.
class Busy {
 public:
    explicit Busy(bool& flag) : flag_(flag) { flag_ = true; }
    ~Busy() { flag_ = false; }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

 private:
    bool& flag_;
};

Cls9 workingGraph(const GraphDialogKind& kind) {
    constexpr int winter = 13;
    Cls9::Basics basics;
    basics.gtpGraphType = kind.graphType;
    basics.lngStepU = basics.lngStepV = 1;
    basics.fstFillStyle = graphs::fill_style::colorMap;
    basics.lngFirstColor = base::packColor(255, 190, 60);
    basics.lngSecondColor = base::packColor(60, 90, 200);
    basics.lngLineWidth = 1;
    basics.MatType = winter;
    basics.shwShow = graphs::shape::filled;
    basics.smtSmooth = graphs::smoothness::smoothest;
    basics.lngConLevel = 1;
    Cls9 graph = Cls9::init(0, basics);
    graph.ColorName = "Rainbow";
    return graph;
}

}  // namespace

GraphForm::GraphForm(core::AppState& state, const GraphDialogKind& kind)
    : Form(std::string(kind.form), std::string(kind.caption)),
      draft_(workingGraph(kind)),
      ranges_(fits(kind.need, state.panel.kind()) ? rangesOfPanel(state) : std::nullopt),
      state_(state),
      kind_(kind) {}

void GraphForm::addFields(std::span<const Field> fields) {
    for (const Field& field : fields) {
        fields_.push_back(field);
        add(controlFor(field, draft_));
    }
}

void GraphForm::layOut(Page page) {
    if (pages().empty() && kind_.need != DataNeed::Scales) addGridding(page.frames);
    addPage(std::move(page));
}

void GraphForm::addGridding(std::vector<Frame>& frames) {
    Control& box = add(griddingBox(std::string(griddingName), state_.gridding, kind_.need == DataNeed::Volume));
    box.visible = data::isIrregular(state_.panel.kind());
    if (box.visible) frames.push_back({"Irregular data", {{box.name}}});
}

void GraphForm::enableBy(std::string_view control, std::vector<std::string_view> anyOf) {
    rules_.push_back({control, std::move(anyOf)});
    applyEnabling();
}

void GraphForm::applyEnabling() {
    for (const EnableRule& rule : rules_)
        control(rule.control).enabled =
            std::ranges::any_of(rule.anyOf, [this](std::string_view name) { return control(name).on; });
}

void GraphForm::changed(Control& control) {
    for (const auto& part : parts_)
        part->changed(control);
    applyEnabling();
}

void GraphForm::pressed(Control& control) {
    for (const auto& part : parts_)
        part->pressed(control);
    const bool bound = std::ranges::find(fields_, control.name, &Field::name) != fields_.end();
    if (!bound || control.kind != ControlKind::ColorBox) return;
    if (const auto chosen = desktop().pickColor(control.color)) {
        control.color = *chosen;
        changed(control);
    }
}

bool GraphForm::complete(Cls9&) {
    return true;
}

void GraphForm::added(const Cls9&) {}

void GraphForm::ok() {
    if (working_) return;
    Cls9 graph = draft_;
    for (const Field& field : fields_)
        if (!store(field, control(field.name), graph, desktop())) return;
    for (const auto& part : parts_)
        part->store(graph);
    if (!complete(graph)) return;
    const Busy busy(working_);
    try {
        // The user may close the dialog while scattered points are gridded; that ends the gridding.
        const auto made = addGraph(state_, std::move(graph), kind_.need, gridding(), [this] { return isOpen(); });
        state_.DialogOk = true;
        close();
        added(*made);
    } catch (const Failure& failure) {
        tellFailure(failure);
    }
}

void GraphForm::tellFailure(const Failure& failure) {
    if (!isOpen()) return;
    if (failure.code() == FailureCode::Cancelled)
        tell(desktop(), "Note", "The gridding was cancelled, no graph was added.");
    else
        desktop().askUser({"Error", failure.what(), platform::Icon::Warning});
}

data::GriddingChoice GraphForm::gridding() const {
    if (kind_.need == DataNeed::Scales) return state_.gridding;
    return chosenGridding(control(griddingName), state_.gridding, kind_.need == DataNeed::Volume);
}

}  // namespace tessaplot::ui

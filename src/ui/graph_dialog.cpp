#include "ui/graph_dialog.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "base/color.h"
#include "base/failure.h"
#include "core/triangulation.h"
#include "graphs/surface_fill.h"
#include "ui/number_box.h"

namespace tessaplot::ui {

namespace {

using base::Failure;
using base::FailureCode;
using graphs::Cls9;

constexpr int fewestNodes = 2;
constexpr std::string_view griddingName = "GridMethod";

constexpr std::array<std::string_view, 5> surfaceMethods{
    "Inverse distance of the nearest points", "Shepard's inverse squared distance",
    "Multiquadric radial basis functions", "Thin plate spline", "Quadratic polynomial by least squares"};
constexpr std::array<std::string_view, 3> volumeMethods{"Inverse distance of the nearest points",
                                                        "Shepard's inverse squared distance",
                                                        "Quadratic polynomial by least squares"};
constexpr int firstSurfaceMethod = 1;
constexpr int firstVolumeMethod = 101;

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

template <class Texts>
std::vector<Item> itemsOf(const Texts& texts) {
    std::vector<Item> items;
    items.reserve(texts.size());
    for (const std::string_view text : texts)
        items.push_back({std::string(text)});
    return items;
}

Cls9 workingGraph(const GraphDialogKind& kind) {
    constexpr int filled = 3;
    constexpr int smoothest = 3;
    constexpr int winter = 13;
    Cls9::Basics basics;
    basics.gtpGraphType = kind.graphType;
    basics.lngStepU = basics.lngStepV = 1;
    basics.fstFillStyle = graphs::fill_style::colorMap;
    basics.lngFirstColor = base::packColor(255, 190, 60);
    basics.lngSecondColor = base::packColor(60, 90, 200);
    basics.lngLineWidth = 1;
    basics.MatType = winter;
    basics.shwShow = filled;
    basics.smtSmooth = smoothest;
    basics.lngConLevel = 1;
    Cls9 graph = Cls9::init(0, basics);
    graph.ColorName = "Rainbow";
    return graph;
}

bool fits(DataNeed need, data::DataKind kind) {
    return need == DataNeed::Scales || (need == DataNeed::Volume) == data::isVolume(kind);
}

void requireKind(DataNeed need, data::DataKind kind) {
    const bool volume = data::isVolume(kind);
    if (!fits(need, kind))
        throw Failure(FailureCode::BadInput, volume
                                                 ? "This graph shows a surface, but the data are those of a volume."
                                                 : "This graph shows a volume, but the data are those of a surface.");
    if (need == DataNeed::ScatteredSurface && !data::isIrregular(kind))
        throw Failure(FailureCode::BadInput, "Triangles are made of irregular data, but the data are regular.");
}

void requireGrid(const data::ClsData& data) {
    const bool volume = data.DataDim == 2;
    if (data.StepsX < fewestNodes || data.StepsY < fewestNodes || (volume && data.StepsZ < fewestNodes))
        throw Failure(FailureCode::BadInput, "The data grid needs at least two rows along each axis.");
}

}  // namespace

/// The panel with its numbers cleaned, and what was read from it.
struct GraphForm::PanelReading {
    data::DataPanel panel;
    data::GriddingChoice gridding;
    data::Scaling scaling;
    data::ClsData data;
    std::vector<geometry::Triangle> triangles;
};

/// Puts what was read from the panel into the document and takes it out again unless it is kept.
class GraphForm::Replacement {
 public:
    Replacement(core::AppState& state, PanelReading& reading) : state_(state), reading_(reading) {
        reading_.triangles = state_.TriangleList;
        swap();
    }
    ~Replacement() {
        if (!kept_) swap();
    }
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;
    void keep() { kept_ = true; }

 private:
    void swap() {
        std::swap(state_.panel, reading_.panel);
        std::swap(state_.gridding, reading_.gridding);
        std::swap(state_.scaling, reading_.scaling);
        std::swap(state_.TheData, reading_.data);
        std::swap(state_.TriangleList, reading_.triangles);
    }

    core::AppState& state_;
    PanelReading& reading_;
    bool kept_ = false;
};

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
    const bool volume = kind_.need == DataNeed::Volume;
    const data::GriddingChoice& choice = state_.gridding;
    Control method;
    method.kind = ControlKind::ComboBox;
    method.name = griddingName;
    method.caption = "Gridding method";
    method.items = volume ? itemsOf(volumeMethods) : itemsOf(surfaceMethods);
    method.selected =
        volume ? choice.VolumeGridMethod - firstVolumeMethod : choice.SurfaceGridMethod - firstSurfaceMethod;
    if (method.selected >= static_cast<int>(method.items.size())) method.selected = -1;
    method.visible = data::isIrregular(state_.panel.kind());
    method.hint = "How the scattered points are brought to a grid";
    if (add(method).visible) frames.push_back({"Irregular data", {{method.name}}});
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
        addGraph(std::move(graph));
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

data::GriddingChoice GraphForm::chosenGridding() const {
    data::GriddingChoice choice = state_.gridding;
    if (kind_.need == DataNeed::Scales) return choice;
    const int entry = control(griddingName).selected;
    if (entry < 0) return choice;
    if (kind_.need == DataNeed::Volume)
        choice.VolumeGridMethod = entry + firstVolumeMethod;
    else
        choice.SurfaceGridMethod = entry + firstSurfaceMethod;
    return choice;
}

/// A point is placed by the scales alone: once there are some, the data stay as they are.
bool GraphForm::keepsData() const {
    const data::Scaling& scaling = state_.scaling;
    return kind_.need == DataNeed::Scales && scaling.ScaleX != 0 && scaling.ScaleY != 0 && scaling.ScaleZ != 0;
}

GraphForm::PanelReading GraphForm::readPanel() const {
    requireKind(kind_.need, state_.panel.kind());
    PanelReading reading{state_.panel, chosenGridding(), state_.scaling, {}, {}};
    std::string message;
    if (!reading.panel.CheckData(message)) {
        const char* reason = kind_.need == DataNeed::Scales ? "A point is placed by the scales of the data. " : "";
        throw Failure(FailureCode::BadInput, reason + message);
    }
    // The user may close the dialog while scattered points are gridded; that ends the gridding.
    platform::Desktop patient = desktop();
    patient.reportProgress = [this](double share) {
        return (!desktop().reportProgress || desktop().reportProgress(share)) && isOpen();
    };
    reading.data.GetData(reading.panel, reading.scaling, reading.gridding, patient);
    if (!isOpen()) throw Failure(FailureCode::Cancelled, "The dialog was closed.");
    requireGrid(reading.data);
    return reading;
}

/// A graph that the data cannot show is found before it is part of the document.
void GraphForm::drawOnTrial(Cls9 graph) const {
    gl::DisplayList list;
    graph.Draw(list, state_.graphContext());
}

void GraphForm::addGraph(Cls9 graph) {
    if (keepsData()) {
        drawOnTrial(graph);
    } else {
        PanelReading reading = readPanel();
        Replacement replacement(state_, reading);
        if (kind_.need == DataNeed::ScatteredSurface) core::triangulatePoints(state_);
        const data::ClsData& data = state_.TheData;
        graph.StepU = data.StepsX - 1;
        graph.StepV = data.StepsY - 1;
        graph.StepH = data.DataDim == 2 ? data.StepsZ - 1 : 0;
        drawOnTrial(graph);
        replacement.keep();
    }
    enlist(std::move(graph));
}

void GraphForm::enlist(Cls9 graph) {
    graph.ID = ++state_.LastGraphId;
    graph.NameS = graphs::listLabel(graph, state_.scene.SceneMode);
    const auto made = std::make_shared<Cls9>(std::move(graph));
    state_.AllGraphs.Graphs.push_back(made);
    state_.DialogOk = true;
    close();
    added(*made);
}

}  // namespace tessaplot::ui

#include "ui/panel_ranges.h"

#include <algorithm>
#include <string>

#include "base/failure.h"
#include "base/number_text.h"
#include "data/range.h"
#include "graphs/nice_scale.h"

namespace tessaplot::ui {

namespace {

using data::DataKind;
using data::DataPanel;

/// The boxes of the panel that hold the limits and the node count of one axis.
struct Boxes {
    int lower;
    int upper;
    int count;
};

Range limits(const DataPanel& panel, const Boxes& boxes) {
    const double first = panel.number(boxes.lower);
    const double second = panel.number(boxes.upper);
    return {std::min(first, second), std::max(first, second)};
}

Range ofColumn(const DataPanel& panel, int column) {
    Range range{base::TextValue(panel.cell(column, 1)), base::TextValue(panel.cell(column, 1))};
    const int points = panel.count(3);
    for (int row = 2; row <= points; ++row)
        data::widen(base::TextValue(panel.cell(column, row)), range.lower, range.upper);
    return range;
}

/// The scale of the height in a data set that spans these ranges.
double heightScale(const PanelRanges& ranges, data::Scaling scaling) {
    data::ClsData span;
    span.DataDim = 1;
    span.DataType = 1;
    span.StepsX = 2;
    span.StepsY = 1;
    for (data::Array* array : {&span.Reg3DX, &span.Reg3DY, &span.Reg3DZ})
        array->allocate(span.StepsX, span.StepsY);
    const auto set = [](data::Array& array, const Range& range) {
        array(0, 0) = range.lower;
        array(1, 0) = range.upper;
    };
    set(span.Reg3DX, ranges.x);
    set(span.Reg3DY, ranges.y);
    set(span.Reg3DZ, ranges.z);
    span.Normalize(scaling);
    return scaling.ScaleZ;
}

PanelRanges ofScatteredSurface(const DataPanel& panel, const data::Scaling& scaling) {
    const bool cylindrical = panel.kind() == DataKind::IrregularCylindrical;
    const Boxes second = cylindrical ? Boxes{8, 9, 10} : Boxes{5, 6, 7};
    PanelRanges ranges{};
    ranges.x = limits(panel, {1, 2, 4});
    ranges.y = limits(panel, second);
    ranges.z = ofColumn(panel, 3);
    ranges.value = ofColumn(panel, 4);
    ranges.nodes = {panel.count(4), panel.count(second.count), 0};
    ranges.heightScale = data::isCurvilinear(panel.kind()) ? 1 : heightScale(ranges, scaling);
    return ranges;
}

PanelRanges ofScatteredVolume(const DataPanel& panel) {
    PanelRanges ranges{};
    ranges.x = limits(panel, {1, 2, 4});
    ranges.y = limits(panel, {5, 6, 7});
    ranges.z = limits(panel, {8, 9, 10});
    ranges.value = ofColumn(panel, 4);
    ranges.nodes = {panel.count(4), panel.count(7), panel.count(10)};
    return ranges;
}

PanelRanges ofRegularData(const DataPanel& panel, data::Scaling scaling) {
    data::ClsData data;
    data.GetData(panel, scaling, {}, {});
    PanelRanges ranges{};
    ranges.x = {data.MinX, data.MaxX};
    ranges.y = {data.MinY, data.MaxY};
    ranges.z = {data.MinZ, data.MaxZ};
    ranges.value = data.DataDim == 2 ? Range{data.MInv, data.MaxV} : Range{data.MinC, data.MaxC};
    ranges.heightScale = scaling.ScaleZ;
    ranges.nodes = {data.StepsX, data.StepsY, data.DataDim == 2 ? data.StepsZ : 0};
    return ranges;
}

PanelRanges rangesOf(const DataPanel& panel, const data::Scaling& scaling) {
    if (panel.kind() == DataKind::IrregularVolume) return ofScatteredVolume(panel);
    if (data::isIrregular(panel.kind())) return ofScatteredSurface(panel, scaling);
    return ofRegularData(panel, scaling);
}

}  // namespace

std::optional<PanelRanges> rangesOfPanel(const core::AppState& state) {
    try {
        DataPanel panel = state.panel;
        std::string message;
        if (panel.dataRows() < 1 || !panel.CheckData(message)) return std::nullopt;
        return rangesOf(panel, state.scaling);
    } catch (const base::Failure&) {
        return std::nullopt;
    }
}

double roundStep(const Range& range) {
    const double step = graphs::NiceScale(range.lower, range.upper).step;
    return step > 0 ? step : 1;
}

}  // namespace tessaplot::ui

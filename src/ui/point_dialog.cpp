#include "ui/point_dialog.h"

#include <array>

#include "ui/fields.h"

namespace tessaplot::ui {

namespace {

using graphs::Cls9;

/// Which property takes the user's x, y and z.
struct Axes {
    double Cls9::*x;
    double Cls9::*y;
    double Cls9::*z;
};

constexpr Axes spatialAxes{&Cls9::PointZ, &Cls9::PointX, &Cls9::PointY};
constexpr Axes flatAxes{&Cls9::PointY, &Cls9::PointZ, &Cls9::PointX};

}  // namespace

frmF16::frmF16(core::AppState& state)
    : GraphForm(state, {graphs::graph_type::point, "frmF16", "Point Properties", DataNeed::Scales}) {
    draft_.PointColor = base::packColor(255, 0, 0);
    draft_.PointSize = 3;
    const Axes axes = scene::isFlat(state.scene.SceneMode) ? flatAxes : spatialAxes;
    const std::array fields{
        field::number("Text2", "X", axes.x, NumberRule::Any), field::number("Text3", "Y", axes.y, NumberRule::Any),
        field::number("Text4", "Z", axes.z, NumberRule::Any), field::colorBox("Picture1", "Color", &Cls9::PointColor),
        field::sizes("Combo2", "Size", &Cls9::PointSize)};
    addFields(fields);
    layOut({"Point", {{"Coordinate", {{"Text2"}, {"Text3"}, {"Text4"}}}, {"Marker", {{"Picture1"}, {"Combo2"}}}}});
}

}  // namespace tessaplot::ui

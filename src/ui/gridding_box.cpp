#include "ui/gridding_box.h"

#include <array>
#include <string_view>
#include <utility>

#include "ui/control_makers.h"

namespace tessaplot::ui {

namespace {

constexpr std::array<std::string_view, 5> surfaceMethods{
    "Inverse distance of the nearest points", "Shepard's inverse squared distance",
    "Multiquadric radial basis functions", "Thin plate spline", "Quadratic polynomial by least squares"};
constexpr std::array<std::string_view, 3> volumeMethods{"Inverse distance of the nearest points",
                                                        "Shepard's inverse squared distance",
                                                        "Quadratic polynomial by least squares"};
constexpr int firstSurfaceMethod = 1;
constexpr int firstVolumeMethod = 101;

template <class Texts>
std::vector<Item> itemsOf(const Texts& texts) {
    std::vector<Item> items;
    items.reserve(texts.size());
    for (const std::string_view text : texts)
        items.push_back({std::string(text)});
    return items;
}

}  // namespace

Control griddingBox(std::string name, const data::GriddingChoice& choice, bool volume) {
    std::vector<Item> methods = volume ? itemsOf(volumeMethods) : itemsOf(surfaceMethods);
    const int entry =
        volume ? choice.VolumeGridMethod - firstVolumeMethod : choice.SurfaceGridMethod - firstSurfaceMethod;
    const int selected = entry < static_cast<int>(methods.size()) ? entry : -1;
    Control box = comboBox(std::move(name), "Gridding method", std::move(methods), selected);
    box.hint = "How the scattered points are brought to a grid";
    return box;
}

data::GriddingChoice chosenGridding(const Control& box, data::GriddingChoice choice, bool volume) {
    if (box.selected < 0) return choice;
    if (volume)
        choice.VolumeGridMethod = box.selected + firstVolumeMethod;
    else
        choice.SurfaceGridMethod = box.selected + firstSurfaceMethod;
    return choice;
}

}  // namespace tessaplot::ui

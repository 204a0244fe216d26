#include "ui/material_items.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "scene/material.h"

namespace tessaplot::ui {

namespace {

constexpr int swatchColors = 24;

scene::Cls11 materialOf(int number) {
    scene::Cls11 material;
    gl::DisplayList unused;
    material.SetMaterial(unused, number);
    return material;
}

/// The colour of a ball where it is turned away from a white light by an angle of this cosine.
base::PackedColor litColor(const scene::Cls11& material, double cosine) {
    const double highlight = std::pow(cosine, material.Shininess[0] / 4.0);
    std::array<int, 3> bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const double light = material.Emission[i] + material.Ambient[i] / 2 + material.Diffuse[i] * cosine +
                             material.Specular[i] * highlight;
        bytes[i] = static_cast<int>(std::lround(255 * std::clamp(light, 0.0, 1.0)));
    }
    return base::packColor(bytes[0], bytes[1], bytes[2]);
}

std::vector<base::PackedColor> swatchOf(const scene::Cls11& material) {
    constexpr double highlightAt = 0.35;
    std::vector<base::PackedColor> swatch;
    for (int i = 0; i < swatchColors; ++i) {
        const double across = (i + 0.5) / swatchColors;
        const double rim = across < highlightAt ? highlightAt : 1 - highlightAt;
        const double sine = std::abs(across - highlightAt) / rim;
        swatch.push_back(litColor(material, std::sqrt(1 - sine * sine)));
    }
    return swatch;
}

}  // namespace

std::vector<Item> materialItems() {
    std::vector<Item> items;
    for (const std::string_view name : scene::materialNames()) {
        const int number = static_cast<int>(items.size()) + 1;
        items.push_back({std::string(name), swatchOf(materialOf(number))});
    }
    return items;
}

int materialEntry(int material) {
    const int count = static_cast<int>(scene::materialNames().size());
    return material >= 1 && material <= count ? material - 1 : -1;
}

}  // namespace tessaplot::ui

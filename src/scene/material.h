#pragma once

#include <array>
#include <span>
#include <string_view>

#include "gl/display_list.h"

namespace tessaplot::scene {

/// A set of surface reflectances that a graph or a panel selects by number.
struct Cls11 {
    int MatType = 0;
    std::array<float, 4> Emission{};
    std::array<float, 4> Shininess{};  ///< Only entry 0 is used.
    std::array<float, 4> Specular{};
    std::array<float, 4> Diffuse{};
    std::array<float, 4> Ambient{};

    /// Loads material 1 to 13 (any other number leaves the values) and emits the values.
    void SetMaterial(gl::DisplayList& list, int type);
};

/// The material that shines of itself: colours feed its emission. Its opacity is 0.
inline constexpr int neon = 5;

/// The names of materials 1 to 13, in this order.
std::span<const std::string_view> materialNames();

}  // namespace tessaplot::scene

#pragma once

#include <cstdint>

#include "base/color.h"
#include "gl/display_list.h"
#include "scene/scene_state.h"

namespace tessaplot::scene {

/// A point in space that is at the same time a vector and a marker that draws itself: a sphere in a 3D or 4D scene, a
/// flat symbol in a 2D scene.
struct Cls2 {
    std::int16_t Symbol = 0;  ///< 1 disc, 2 ring, 3 square, 4 triangle, 5 diamond, 6 plus sign; others draw nothing.
    bool Show = false;        ///< Stored only.
    bool Hollow = false;      ///< Stored only.
    double z = 0;
    double y = 0;
    double x = 0;
    base::PackedColor Color = 0;
    double size = 0.15;

    static Cls2 init(double x, double y, double z);
    void Draw(gl::DisplayList& list, const SceneState& scene) const;
};

}  // namespace tessaplot::scene

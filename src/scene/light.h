#pragma once

#include <array>

#include "gl/display_list.h"

namespace tessaplot::scene {

/// The scene's light, emitted before every display.
struct Cls10 {
    bool Enabled = true;
    std::array<float, 4> Specular{1, 1, 1, 1};
    std::array<float, 4> Amission{1, 1, 1, 1};  ///< GL_AMBIENT of the lights.
    std::array<float, 4> Diffuse{1, 1, 1, 1};
    std::array<float, 4> Position{1000, 1000, 1000, 1};
    std::array<float, 4> GlobalAmbient{1, 0, 0, 0};
    std::array<float, 4> TwoSides{1, 0, 0, 0};  ///< Only entry 0 counts; 1 is on.

    void SetLight(gl::DisplayList& list) const;
};

}  // namespace tessaplot::scene

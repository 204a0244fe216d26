#pragma once

namespace tessaplot::scene {

/// The dimension modes of a document.
inline constexpr int mode3D = 3;
inline constexpr int mode2D = 7;
inline constexpr int mode4D = 11;

/// What every drawing part of the scene must know: the mode and the midpoint of the box of the shown graphs, in scene
/// axes (scene x holds data Y, scene y holds data Z, scene z holds data X).
struct SceneState {
    int SceneMode = mode3D;
    double SceneCenterX = 0;
    double SceneCenterY = 0;
    double SceneCenterZ = 0;
};

/// True for the modes in which markers and the frame are drawn flat; 1 and 4 are numbers of old documents.
constexpr bool isFlat(int sceneMode) {
    return sceneMode == mode2D || sceneMode == 1 || sceneMode == 4;
}

}  // namespace tessaplot::scene

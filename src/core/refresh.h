#pragma once

#include "core/app_state.h"
#include "gl/display_list.h"

namespace tessaplot::core {

/// What has changed since the scene was compiled: a camera change (turn, zoom, pan, quality) leaves graphs and frame as
/// they were recorded.
enum class SceneChange { Document, Camera };

/// Compiles the scene into list 900: eight samples, or two while a drag runs, then the legends. Graphs that the data
/// set is too small for are left out; a message names them once, as long as it stays so. Any other failure of a graph
/// leaves the scene that was compiled before.
void RebuildScene(AppState& state, SceneChange change = SceneChange::Document);

/// The calls of one display of the compiled scene: light, projection, list 900.
gl::DisplayList recordDisplay(AppState& state);

/// `RebuildScene` after a change of camera, then the picture.
void rebuildForCamera(AppState& state);

/// Sets the camera so that it shows all of the shown graphs: the view volume becomes 2.1 times the largest extent of
/// their box, moved aside for the legends if they are shown. Nothing without a graph in the picture. The scene must be
/// centred.
void fitCamera(AppState& state);

/// `fitCamera`, then the picture.
void fitView(AppState& state);

/// Puts the middle of the box of the shown graphs at the origin of the scene.
void centreScene(AppState& state);

}  // namespace tessaplot::core

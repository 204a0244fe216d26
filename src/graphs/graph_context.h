#pragma once

#include <filesystem>
#include <span>

#include "data/data_kind.h"
#include "data/data_set.h"
#include "data/scaling.h"
#include "geometry/delaunay.h"
#include "platform/desktop.h"
#include "scene/scene_state.h"

namespace tessaplot::graphs {

class TextureCache;

/// What a graph reads when it is boxed or drawn: the one data set, its kind and scales, the scene, and what only some
/// kinds ask for.
struct GraphContext {
    const data::ClsData& data;
    data::DataKind kind;
    const data::Scaling& scaling;
    const scene::SceneState& scene;
    /// The last triangulation; the triangles name points of the data set from 1.
    std::span<const geometry::Triangle> triangles{};
    /// Loads pictures and takes messages; none, and there are no pictures.
    const platform::Desktop* desktop = nullptr;
    /// Textures that were loaded before; none, and each drawing loads its own.
    TextureCache* textures = nullptr;
    /// Where the open document was read: its textures may lie beside it.
    std::filesystem::path documentFolder{};
};

}  // namespace tessaplot::graphs

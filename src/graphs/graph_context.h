#pragma once

#include "data/data_kind.h"
#include "data/data_set.h"
#include "data/scaling.h"
#include "scene/scene_state.h"

namespace tessaplot::graphs {

/// What a graph reads when it is boxed or drawn: the one data set, its kind and scales, and the scene.
struct GraphContext {
    const data::ClsData& data;
    data::DataKind kind;
    const data::Scaling& scaling;
    const scene::SceneState& scene;
};

}  // namespace tessaplot::graphs

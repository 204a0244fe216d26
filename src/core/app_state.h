#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "core/graph_list.h"
#include "core/group.h"
#include "data/data_panel.h"
#include "data/data_set.h"
#include "data/scaling.h"
#include "geometry/delaunay.h"
#include "gl/display_list.h"
#include "graphs/texture.h"
#include "platform/desktop.h"
#include "scene/axis.h"
#include "scene/box.h"
#include "scene/light.h"
#include "scene/scene_state.h"
#include "scene/trackball.h"
#include "scene/view.h"

namespace tessaplot::core {

/// The scene as it was compiled last: the list that every picture is made of, and what it calls.
struct CompiledScene {
    std::vector<gl::DisplayListPtr> graphs;  ///< One list for each shown graph.
    gl::DisplayListPtr frame;
    gl::DisplayListPtr body;     ///< Graphs and frame; the same for every sample and every camera.
    gl::DisplayListPtr legends;  ///< Overlaid after the accumulation.
    gl::DisplayListPtr list900;
    /// Names the shown graphs that do not fit the data and are left out; empty for none.
    std::string misfits;
};

struct DocumentAhead;

/// The one state of the program: made once at the start, owns everything, passed by reference.
struct AppState {
    data::Scaling scaling;
    data::GriddingChoice gridding;
    scene::SceneState scene;
    bool ShowLegend = true;
    Cls8 AllGraphs;    ///< Every graph of the document.
    Cls8 ShownGraphs;  ///< The ticked graphs: what is drawn and what is saved; its angles turn the scene.
    GraphList List1;
    scene::Cls1 SceneBox;
    scene::Cls3 TheAxis;
    data::DataPanel panel;
    data::ClsData TheData;
    /// The triangles of the last triangulation; they name points of the data set from 1.
    std::vector<geometry::Triangle> TriangleList;
    int TriangleCount() const { return static_cast<int>(TriangleList.size()); }
    int LastGraphId = 0;
    scene::Cls4 TheView;
    scene::Cls10 TheLight;
    bool FitOnRefresh = false;
    bool ShowEvalErrors = false;
    bool AxisDialogOk = false;  ///< The axis dialog was closed with OK.
    bool DialogOk = false;      ///< The property dialog of a graph that was shown last was closed with OK.
    /// The ranges that the view dialog shows.
    double ViewMinX = -50, ViewMaxX = 50, ViewMinY = -50, ViewMaxY = 50, ViewMinZ = -50, ViewMaxZ = 50;
    scene::RotateMode RotateMode = scene::RotateMode::None;

    scene::Quaternion CurQuat{0, 0, 0, 1};
    bool UseQuat = false;  ///< The rotation is `CurQuat`; otherwise it comes from the group's angles.
    bool QuickDraw = false;

    CompiledScene compiled;
    platform::Desktop desktop;
    std::shared_ptr<graphs::TextureCache> textures = std::make_shared<graphs::TextureCache>();
    std::filesystem::path samplesFolder;   ///< Where the documents of the Demo menu lie.
    std::filesystem::path documentFolder;  ///< Of the document opened last: its textures may lie there.
    /// What `readAhead` gave; `LoadDocument` takes it for that path.
    std::shared_ptr<DocumentAhead> documentAhead;

    graphs::GraphContext graphContext() const {
        return {TheData, panel.kind(), scaling, scene, TriangleList, &desktop, textures.get(), documentFolder};
    }
};

}  // namespace tessaplot::core

#include "core/refresh.h"

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace tessaplot::core {

namespace {

using gl::DisplayList;

struct Jitter {
    double x;
    double y;
};

/// Sample positions in pixels.
constexpr std::array<Jitter, 8> jitter8{{{-0.334818, 0.435331},
                                         {0.286438, -0.393495},
                                         {0.459462, 0.14154},
                                         {-0.414498, -0.192829},
                                         {-0.18379, 0.082102},
                                         {-0.079263, -0.317383},
                                         {0.102254, 0.299133},
                                         {0.164216, -0.054399}}};
constexpr std::array<Jitter, 2> jitter2{{{0.24649, 0.249999}, {-0.24649, -0.249999}}};

std::function<scene::Cls1()> boxOfShown(const AppState& state) {
    return [&state] { return state.ShownGraphs.GetBox(state.graphContext()); };
}

void recordFrame(DisplayList& frame, AppState& state) {
    constexpr int mode = 2;
    state.SceneBox = state.ShownGraphs.GetBox(state.graphContext());
    const scene::Cls1& box = state.SceneBox;
    const scene::AxisScales scales{state.scaling.ScaleX, state.scaling.ScaleY, state.scaling.ScaleZ};
    state.TheAxis.Draw(frame, state.scene, scales, mode, box.MinX, box.MaxX, box.MinY, box.MaxY, box.MinZ, box.MaxZ);
}

bool fits(const DrawnGraph& drawn) {
    return drawn.misfit.empty();
}

gl::DisplayListPtr legendsOf(const std::vector<DrawnGraph>& drawn) {
    auto legends = std::make_shared<DisplayList>();
    for (const DrawnGraph& one : drawn)
        if (!one.legend->empty()) legends->glCallList(one.legend);
    return legends;
}

std::string misfitReport(const std::vector<DrawnGraph>& drawn, int sceneMode) {
    std::string report;
    for (const DrawnGraph& one : drawn) {
        if (fits(one)) continue;
        if (!report.empty()) report += '\n';
        report += "The graph \"" + graphs::listLabel(*one.graph, sceneMode) + "\" (number " +
                  std::to_string(one.graph->ID) +
                  ") does not fit the data and is left out of the picture: " + one.misfit;
    }
    return report;
}

/// Records all that does not depend on the camera.
CompiledScene recordBody(AppState& state) {
    CompiledScene compiled;
    const std::vector<DrawnGraph> drawn = state.ShownGraphs.Draw(state.graphContext());
    for (const DrawnGraph& one : drawn)
        compiled.graphs.push_back(one.list);
    auto frame = std::make_shared<DisplayList>();
    if (std::ranges::any_of(drawn, fits) && state.TheAxis.Show) recordFrame(*frame, state);
    auto body = std::make_shared<DisplayList>();
    for (const gl::DisplayListPtr& graph : compiled.graphs)
        body->glCallList(graph);
    if (!frame->empty()) body->glCallList(frame);
    compiled.frame = std::move(frame);
    compiled.body = std::move(body);
    compiled.legends = legendsOf(drawn);
    compiled.misfits = misfitReport(drawn, state.scene.SceneMode);
    return compiled;
}

scene::Matrix16 sceneRotation(AppState& state) {
    if (!state.UseQuat) {
        const Cls8& group = state.ShownGraphs;
        state.CurQuat = scene::quatFromAngles(group.RotRoll, group.RotPitch, group.RotYaw);
    }
    return scene::BuildRotMatrix(state.CurQuat);
}

void accumulateSamples(DisplayList& list, AppState& state) {
    const std::span<const Jitter> samples = state.QuickDraw ? std::span<const Jitter>(jitter2) : jitter8;
    const scene::Matrix16 rotation = sceneRotation(state);
    for (const Jitter& jitter : samples) {
        list.glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        state.TheView.Projection(list, jitter.x, jitter.y, 0, 0, 1.0, boxOfShown(state));
        list.glMultMatrixf(rotation);
        list.glCallList(state.compiled.body);
        list.glAccum(GL_ACCUM, 1.0F / static_cast<float>(samples.size()));
    }
    list.glAccum(GL_RETURN, 1.0F);
    list.glFlush();
}

/// Legend coordinates are percentages of the picture.
void overlayLegends(DisplayList& list, const AppState& state) {
    for (const GLenum matrix : {GL_MODELVIEW, GL_PROJECTION}) {
        list.glMatrixMode(matrix);
        list.glPushMatrix();
        list.glLoadIdentity();
    }
    list.glOrtho(0, 100, 0, 100, -1, 1);
    list.glMatrixMode(GL_MODELVIEW);
    if (!state.compiled.legends->empty()) list.glCallList(state.compiled.legends);
    list.glMatrixMode(GL_PROJECTION);
    list.glPopMatrix();
    list.glMatrixMode(GL_MODELVIEW);
    list.glPopMatrix();
}

gl::DisplayListPtr recordScene(AppState& state) {
    auto list = std::make_shared<DisplayList>();
    list->glClear(GL_ACCUM_BUFFER_BIT);
    accumulateSamples(*list, state);
    if (state.ShowLegend) overlayLegends(*list, state);
    return list;
}

}  // namespace

void centreScene(AppState& state) {
    const scene::Cls1 box = state.ShownGraphs.GetBox(state.graphContext());
    state.scene.SceneCenterX = (box.MaxX + box.MinX) / 2;
    state.scene.SceneCenterY = (box.MaxY + box.MinY) / 2;
    state.scene.SceneCenterZ = (box.MaxZ + box.MinZ) / 2;
}

void RebuildScene(AppState& state, SceneChange change) {
    const std::string misfitsBefore = state.compiled.misfits;
    if (change == SceneChange::Document || !state.compiled.body) {
        const scene::SceneState before = state.scene;
        try {
            centreScene(state);
            state.compiled = recordBody(state);
        } catch (...) {
            state.scene = before;
            throw;
        }
    }
    state.compiled.list900 = recordScene(state);
    const std::string& misfits = state.compiled.misfits;
    if (!misfits.empty() && misfits != misfitsBefore) state.desktop.askUser({"Note", misfits, platform::Icon::Warning});
}

gl::DisplayList recordDisplay(AppState& state) {
    DisplayList list;
    if (!state.compiled.list900) RebuildScene(state);
    list.glViewport(0, 0, state.TheView.viewportWidth(), state.TheView.viewportHeight());
    // Lights are placed by the modelview in force, which is that of the camera from the second picture on. Setting it
    // first lights the first picture like all that follow.
    state.TheView.Projection(list, 0, 0, 0, 0, 1.0, boxOfShown(state));
    state.TheLight.SetLight(list);
    list.glShadeModel(GL_SMOOTH);
    state.TheView.Projection(list, 0, 0, 0, 0, 1.0, boxOfShown(state));
    list.glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    list.glPushMatrix();
    list.glCallList(state.compiled.list900);
    list.glPopMatrix();
    list.glFinish();
    return list;
}

void rebuildForCamera(AppState& state) {
    RebuildScene(state, SceneChange::Camera);
    state.desktop.displayPicture();
}

void fitCamera(AppState& state) {
    if (state.ShownGraphs.empty()) return;
    const scene::Cls1 box = state.ShownGraphs.GetBox(state.graphContext());
    if (box.MinX > box.MaxX) return;
    const scene::SceneState& at = state.scene;
    state.TheView.ZoomAll(box.MinX - at.SceneCenterX, box.MinY - at.SceneCenterY, box.MinZ - at.SceneCenterZ,
                          box.MaxX - at.SceneCenterX, box.MaxY - at.SceneCenterY, box.MaxZ - at.SceneCenterZ,
                          at.SceneMode);
    state.TheView.Zoom(2.1);
    if (state.ShowLegend) state.TheView.MoveView(-0.05, 0);
}

void fitView(AppState& state) {
    fitCamera(state);
    rebuildForCamera(state);
}

}  // namespace tessaplot::core

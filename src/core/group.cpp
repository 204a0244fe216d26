#include "core/group.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/failure.h"

namespace tessaplot::core {

namespace {

constexpr double startLimit = 99999999.0;
constexpr double margin = 0.04;

void requireFinite(const scene::Cls1& box) {
    for (const double limit : {box.MinX, box.MaxX, box.MinY, box.MaxY, box.MinZ, box.MaxZ})
        if (!std::isfinite(limit))
            throw base::Failure(base::FailureCode::Overflow, "The box of the graphs is not finite.");
}

/// Runs `work`, which reads the data set for a graph. If that needs what the data set does not hold, the reason comes
/// back; otherwise an empty text.
template <class Work>
std::string misfitOf(Work&& work) {
    try {
        work();
    } catch (const base::Failure& failure) {
        if (failure.code() != base::FailureCode::SubscriptOutOfRange) throw;
        return failure.what();
    }
    return {};
}

void widen(scene::Cls1& box, const scene::Cls1& one) {
    box.MinX = std::min(box.MinX, one.MinX);
    box.MaxX = std::max(box.MaxX, one.MaxX);
    box.MinY = std::min(box.MinY, one.MinY);
    box.MaxY = std::max(box.MaxY, one.MaxY);
    box.MinZ = std::min(box.MinZ, one.MinZ);
    box.MaxZ = std::max(box.MaxZ, one.MaxZ);
}

}  // namespace

bool Cls8::contains(const graphs::Cls9& graph) const {
    return std::any_of(Graphs.begin(), Graphs.end(), [&](const GraphPtr& held) { return held.get() == &graph; });
}

void Cls8::remove(const graphs::Cls9& graph) {
    std::erase_if(Graphs, [&](const GraphPtr& held) { return held.get() == &graph; });
}

void Cls8::setAngles(double roll, double pitch, double yaw) {
    RotRoll = roll;
    RotPitch = pitch;
    RotYaw = yaw;
}

scene::Cls1 Cls8::GetBox(const graphs::GraphContext& context) const {
    scene::Cls1 box;
    box.MinX = box.MinY = box.MinZ = startLimit;
    box.MaxX = box.MaxY = box.MaxZ = -startLimit;
    for (const GraphPtr& graph : Graphs)
        static_cast<void>(misfitOf([&] { widen(box, graph->GetBox(context)); }));
    for (double* minimum : {&box.MinX, &box.MinY, &box.MinZ})
        *minimum -= margin;
    for (double* maximum : {&box.MaxX, &box.MaxY, &box.MaxZ})
        *maximum += margin;
    requireFinite(box);
    return box;
}

std::vector<DrawnGraph> Cls8::Draw(const graphs::GraphContext& context) const {
    std::vector<DrawnGraph> drawn;
    drawn.reserve(Graphs.size());
    for (const GraphPtr& graph : Graphs) {
        gl::DisplayList list;
        gl::DisplayList legend;
        std::string misfit = misfitOf([&] {
            graph->Draw(list, context);
            graph->DrawLegend(legend, context);
        });
        if (!misfit.empty()) list = legend = {};
        drawn.push_back({graph, std::make_shared<gl::DisplayList>(std::move(list)),
                         std::make_shared<gl::DisplayList>(std::move(legend)), std::move(misfit)});
    }
    return drawn;
}

}  // namespace tessaplot::core

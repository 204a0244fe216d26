#include "graphs/volume_grid.h"

#include <string>

#include "base/failure.h"

namespace tessaplot::graphs {

namespace {

const data::ClsData& checked(const data::ClsData& data, const Cls9& graph) {
    for (const data::Array* array : {&data.Reg4DX, &data.Reg4DY, &data.Reg4DZ, &data.Reg4DV})
        static_cast<void>((*array)(graph.StepU, graph.StepV, graph.StepH));
    return data;
}

}  // namespace

VolumeGrid::VolumeGrid(const data::ClsData& data, const Cls9& graph)
    : last_{graph.StepU, graph.StepV, graph.StepH},
      strideJ_(checked(data, graph).Reg4DV.strideJ()),
      strideK_(data.Reg4DV.strideK()),
      x_(data.Reg4DX.values()),
      y_(data.Reg4DY.values()),
      z_(data.Reg4DZ.values()),
      value_(data.Reg4DV.values()) {}

std::size_t VolumeGrid::nodeCount() const {
    std::size_t count = 1;
    for (const int last : last_)
        count *= static_cast<std::size_t>(last) + 1;
    return count;
}

void VolumeGrid::requireMarkable() const {
    if (nodeCount() > mostMarkedNodes)
        throw base::Failure(base::FailureCode::SubscriptOutOfRange,
                            "The volume has " + std::to_string(nodeCount()) + " nodes; no more than " +
                                std::to_string(mostMarkedNodes) + " can be marked one by one.");
}

}  // namespace tessaplot::graphs

#pragma once

#include <functional>
#include <memory>

#include "core/app_state.h"
#include "graphs/graph.h"

namespace tessaplot::ui {

/// What a kind of graph needs of the data.
enum class DataNeed { Scales, Surface, ScatteredSurface, Volume };

/// True if data of this kind have the dimension that is needed.
bool fits(DataNeed need, data::DataKind kind);

/// Adds a graph to the end of the document with the next id, and returns it. The panel's data, gridded as chosen,
/// become those of the document, and the graph gets its steps from them; it is drawn on trial before anything is kept.
/// A graph that needs scales alone leaves the data as they are once there are some.
///
/// `isWanted` is asked while scattered points are gridded; false cancels. Throws a Failure and leaves the document as
/// it was if the panel holds no data that the graph can show.
std::shared_ptr<graphs::Cls9> addGraph(core::AppState& state, graphs::Cls9 graph, DataNeed need,
                                       const data::GriddingChoice& gridding, const std::function<bool()>& isWanted);

}  // namespace tessaplot::ui

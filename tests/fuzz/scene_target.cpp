#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "base/failure.h"
#include "core/app_state.h"
#include "core/document.h"
#include "core/refresh.h"
#include "fuzz/property.h"
#include "fuzz/small_document.h"
#include "fuzz/targets.h"

namespace tessaplot::fuzz {

namespace {

/// Whether opening costs little: a document may well ask for eight million nodes.
bool isSmall(const core::Document& document) {
    constexpr std::size_t mostGraphs = 8;
    constexpr int mostRows = 400;
    constexpr int longestSide = 12;
    if (document.graphs.size() > mostGraphs || document.panel.dataRows() > mostRows) return false;
    if (!data::isIrregular(document.panel.kind())) return true;
    return std::ranges::all_of(std::array{4, 7, 10}, [&](int box) { return document.panel.count(box) <= longestSide; });
}

}  // namespace

bool openSmallDocument(core::AppState& state, std::string_view bytes) {
    const std::optional<std::string> text = core::documentTextIn(bytes);
    if (!text) return false;
    const std::optional<core::Document> document = core::readDocument(*text);
    if (!document || !isSmall(*document)) return false;
    require(core::LoadDocument(state, fileWith(bytes, ".tsp")) == core::LoadResult::Loaded, "a document read opens");
    core::fitView(state);
    return true;
}

void scene(std::string_view bytes) {
    core::AppState state;
    try {
        if (!openSmallDocument(state, bytes)) return;
    } catch (const base::Failure&) {
        return;
    }
    static_cast<void>(core::recordDisplay(state));
}

}  // namespace tessaplot::fuzz

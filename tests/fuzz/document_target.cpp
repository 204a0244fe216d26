#include <optional>
#include <string>

#include "base/failure.h"
#include "core/document.h"
#include "fuzz/property.h"
#include "fuzz/targets.h"

namespace tessaplot::fuzz {

namespace {

/// Old documents with more graphs than these may be too long for the token table once they are written anew.
constexpr std::size_t mostGraphs = 1000;

std::string saved(const core::Document& document) {
    core::DocumentParts parts{document.SceneMode,
                              document.panel,
                              {},
                              document.axis,
                              document.scaling.value_or(data::Scaling{}),
                              document.gridding.value_or(data::GriddingChoice{})};
    for (const graphs::Cls9& graph : document.graphs)
        parts.graphs.push_back(&graph);
    return core::documentText(parts);
}

std::optional<core::Document> opened(std::string_view bytes) {
    try {
        const std::optional<std::string> text = core::documentTextIn(bytes);
        if (text) return core::readDocument(*text);
    } catch (const base::Failure&) {
        return std::nullopt;
    }
    return std::nullopt;
}

}  // namespace

void document(std::string_view bytes) {
    const std::optional<core::Document> first = opened(bytes);
    if (!first || first->graphs.size() > mostGraphs) return;
    const std::string once = saved(*first);
    const std::optional<core::Document> second = core::readDocument(once);
    require(second.has_value(), "what was saved opens");
    require(saved(*second) == once, "what was saved is saved the same again");
}

}  // namespace tessaplot::fuzz

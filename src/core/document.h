#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/app_state.h"
#include "core/group.h"
#include "data/data_panel.h"
#include "data/scaling.h"
#include "scene/axis.h"

namespace tessaplot::core {

/// A document as it stands in a file, read whole before anything of the open one changes.
struct Document {
    std::string tag;
    int generation = 4;
    int SceneMode = 3;
    data::DataPanel panel;
    std::vector<graphs::Cls9> graphs;
    scene::Cls3 axis;
    std::optional<data::Scaling> scaling;          ///< Generation 4 only; the factors are not set.
    std::optional<data::GriddingChoice> gridding;  ///< As the last graph record has it.
};

inline constexpr int tokenTableSize = 500000;

/// The text that the bytes of a document file hold; empty for none. No value if they are not a document's.
std::optional<std::string> documentTextIn(std::string_view bytes);

/// The text of a document file; empty for an empty file. Throws FileUnreadable, or BadInput if the bytes are not a
/// document.
std::string readDocumentFile(const std::filesystem::path& path);

/// Writes the text at the start of the file: beside it first, then renamed over it; a longer old file keeps its tail.
/// Throws FileUnwritable and leaves the old file whole.
void writeDocumentFile(const std::filesystem::path& path, std::string_view text);

/// Reads a document of any generation. No value if its first token is none of the tags. Throws Failure for more tokens
/// or rows than the tables hold and for numbers out of range.
std::optional<Document> readDocument(std::string_view text);

/// What a document is made of when it is written.
struct DocumentParts {
    int SceneMode;
    const data::DataPanel& panel;
    std::vector<const graphs::Cls9*> graphs;
    const scene::Cls3& axis;
    const data::Scaling& scaling;
    const data::GriddingChoice& gridding;
};

/// The state's own parts with the graphs of `group`.
DocumentParts partsOf(const AppState& state, const Cls8& group);

/// The text of a document of the newest generation; a mode that is none of the three has an empty tag.
std::string documentText(const DocumentParts& parts);

/// The record of one graph with its last blank, as it stands in a document and in the copy buffer.
std::string graphRecord(const graphs::Cls9& graph, const data::GriddingChoice& gridding);

/// Begins to read a document on a thread of its own, while the program starts; nothing for an empty path. What fails
/// there is thrown by `LoadDocument`.
std::shared_ptr<DocumentAhead> readAhead(const std::filesystem::path& path);

/// What became of a document that was asked for.
enum class LoadResult { Loaded, NoPath, EmptyFile, UnknownTag };

/// Opens a document in place of the present one: everything is read before the old one goes, then the panel is parsed
/// into the data set and every graph is ticked. An unknown tag leaves an empty document. A failure while data or graphs
/// are prepared throws and leaves the graphs listed and unticked.
LoadResult LoadDocument(AppState& state, const std::filesystem::path& path);

}  // namespace tessaplot::core

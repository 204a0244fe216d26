#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "base/failure.h"
#include "core/document.h"
#include "core/document_fields.h"
#include "core/record_reader.h"

namespace tessaplot::core {

namespace {

struct Tag {
    std::string_view text;
    int generation;
    int sceneMode;
};

constexpr std::array<Tag, 14> tags{{
    {"D1", 0, scene::mode3D},
    {"D2", 0, scene::mode2D},
    {"D11", 1, scene::mode3D},
    {"D12", 1, scene::mode2D},
    {"D13", 1, scene::mode4D},
    {"D21", 2, scene::mode3D},
    {"D22", 2, scene::mode2D},
    {"D23", 2, scene::mode4D},
    {"D31", 3, scene::mode3D},
    {"D32", 3, scene::mode2D},
    {"D33", 3, scene::mode4D},
    {"D41", 4, scene::mode3D},
    {"D42", 4, scene::mode2D},
    {"D43", 4, scene::mode4D},
}};

/// The kind of a data code; a document that ends before it counts as having code 0.
data::DataKind kindOf(std::string_view code) {
    if (code.empty()) code = "0";
    for (int kind = 0; kind < data::dataKindCount; ++kind)
        if (dataFieldsOf(static_cast<data::DataKind>(kind)).code == code) return static_cast<data::DataKind>(kind);
    throw base::Failure(base::FailureCode::BadInput,
                        "The document holds data of the unknown kind \"" + std::string(code.substr(0, 20)) + "\".");
}

/// Tokens of a row: old surface records have no colour column.
int rowTokens(data::DataKind kind, int generation) {
    return generation < 4 && !data::isVolume(kind) ? 3 : 4;
}

void readData(TokenReader& in, int generation, data::DataPanel& panel) {
    panel.selectKind(kindOf(in.token()));
    for (const int box : dataFieldsOf(panel.kind()).boxes)
        panel.setText(box, std::string(in.token()));
    panel.layOut();
    const int tokens = rowTokens(panel.kind(), generation);
    panel.reserveRows(panel.gridRows() - 1);
    for (int row = 1; row < panel.gridRows(); ++row)
        for (int column = 1; column <= tokens; ++column)
            panel.setCell(column, row, std::string(in.token()));
}

void readGraphs(TokenReader& in, int count, Document& document) {
    data::GriddingChoice gridding;
    for (int i = 0; i < count; ++i) {
        readGraphRecord(in, document.generation, document.graphs.emplace_back(), gridding);
        document.gridding = gridding;
    }
}

}  // namespace

std::optional<Document> readDocument(std::string_view text) {
    TokenReader in(text, tokenTableSize);
    const std::string_view first = in.token();
    const auto* tag = std::find_if(tags.begin(), tags.end(), [&](const Tag& one) { return one.text == first; });
    if (tag == tags.end()) return std::nullopt;

    Document document;
    document.tag = tag->text;
    document.generation = tag->generation;
    document.SceneMode = tag->sceneMode;
    const int count = in.integer();
    readData(in, document.generation, document.panel);
    readGraphs(in, count, document);
    document.axis.SetDefault();
    readAxisRecord(in, document.axis);
    if (document.generation == 4) readScaleRecord(in, document.scaling.emplace());
    return document;
}

}  // namespace tessaplot::core

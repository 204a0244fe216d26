#include <algorithm>
#include <array>
#include <bit>
#include <cctype>
#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "base/failure.h"
#include "data/text_table.h"

namespace tessaplot::data {

namespace {

/// One tag of a data text: the kind it stands for and how many tokens a row has.
struct TextTag {
    std::string_view tag;
    DataKind kind;
    int rowTokens;
};

constexpr std::array<TextTag, 16> tags{{
    {"R3", DataKind::RegularSurface, 3},
    {"RD", DataKind::RegularSurface, 3},
    {"RC", DataKind::RegularSurface, 4},
    {"R3C", DataKind::RegularCylindrical, 3},
    {"RCC", DataKind::RegularCylindrical, 4},
    {"R3S", DataKind::RegularSpherical, 3},
    {"RCS", DataKind::RegularSpherical, 4},
    {"I3", DataKind::IrregularSurface, 3},
    {"ID", DataKind::IrregularSurface, 3},
    {"IC", DataKind::IrregularSurface, 4},
    {"I3C", DataKind::IrregularCylindrical, 3},
    {"ICC", DataKind::IrregularCylindrical, 4},
    {"I3S", DataKind::IrregularSpherical, 3},
    {"ICS", DataKind::IrregularSpherical, 4},
    {"R4", DataKind::RegularVolume, 4},
    {"I4", DataKind::IrregularVolume, 4},
}};

const TextTag* findTag(std::string_view token) {
    std::string end(token.substr(token.size() - std::min<std::size_t>(token.size(), 3)));
    std::transform(end.begin(), end.end(), end.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    const auto* found = std::find_if(tags.begin(), tags.end(), [&](const TextTag& one) {
        return std::string_view(end).ends_with(one.tag) && (one.tag.size() == 2 || end.size() == 3);
    });
    return found == tags.end() ? nullptr : found;
}

constexpr std::array<bool, 256> isSeparator = [] {
    std::array<bool, 256> table{};
    for (const char c : {' ', '\t', '\r', '\n'})
        table[static_cast<unsigned char>(c)] = true;
    return table;
}();

/// The separators among up to 64 characters, a bit each: found without a branch, as none could be foreseen.
std::uint64_t separatorsIn(std::string_view text) {
    std::uint64_t found = 0;
    for (std::size_t i = 0; i < text.size(); ++i)
        found |= static_cast<std::uint64_t>(isSeparator[static_cast<unsigned char>(text[i])]) << i;
    return found;
}

/// Where the tokens of a data text lie: every blank, tab and line end closes one, also an empty one.
std::vector<CellTexts::Place> tokensOf(std::string_view text) {
    constexpr std::size_t blockLength = 64;
    std::vector<CellTexts::Place> tokens;
    tokens.reserve(std::min<std::size_t>(text.size() + 1, textTokenSlots + blockLength));
    std::size_t start = 0;
    const auto closeAt = [&](std::size_t end) {
        tokens.push_back({static_cast<std::uint32_t>(start), static_cast<std::uint32_t>(end - start)});
        start = text.substr(end).starts_with("\r\n") ? end + 2 : end + 1;
    };
    for (std::size_t block = 0; block < text.size() && tokens.size() <= textTokenSlots; block += blockLength) {
        for (std::uint64_t found = separatorsIn(text.substr(block, blockLength)); found != 0; found &= found - 1) {
            const std::size_t end = block + static_cast<std::size_t>(std::countr_zero(found));
            if (end >= start) closeAt(end);
        }
    }
    if (start < text.size()) closeAt(text.size());
    if (tokens.size() > textTokenSlots)
        throw base::Failure(base::FailureCode::SubscriptOutOfRange,
                            "The text has more than " + std::to_string(textTokenSlots) + " tokens.");
    return tokens;
}

void shape(DataPanel& panel, DataKind kind, const std::vector<std::string>& sizes) {
    panel.selectKind(kind);
    const std::vector<int> boxes = sizeBoxesOf(kind);
    for (std::size_t i = 0; i < boxes.size(); ++i)
        panel.setText(boxes[i], sizes[i]);
    panel.layOut();
}

/// An exported text is one quoted line; its last quote would stick to the last number.
void dropQuotes(std::string& text) {
    if (!text.starts_with('"')) return;
    const std::size_t last = text.find_last_not_of(" \r\n");
    if (last > 0 && text[last] == '"') text.resize(last);
    text.erase(0, 1);
}

}  // namespace

bool importText(DataPanel& panel, std::string text) {
    dropQuotes(text);
    const std::vector<CellTexts::Place> tokens = tokensOf(text);
    std::size_t taken = 0;
    const auto next = [&] {
        const CellTexts::Place place = taken < tokens.size() ? tokens[taken++] : CellTexts::Place{};
        return std::string_view(text).substr(place.start, place.length);
    };
    const TextTag* tag = findTag(next());
    if (tag == nullptr) return false;
    std::vector<std::string> sizes;
    for (std::size_t i = 0; i < sizeBoxesOf(tag->kind).size(); ++i)
        sizes.emplace_back(next());

    DataPanel trial;
    shape(trial, tag->kind, sizes);
    shape(panel, tag->kind, sizes);
    panel.fillRows(std::move(text), std::span(tokens).subspan(taken), tag->rowTokens);
    return true;
}

}  // namespace tessaplot::data

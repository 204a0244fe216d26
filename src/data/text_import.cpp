#include <algorithm>
#include <array>
#include <cctype>
#include <string>
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

// A function object, so that searches with it are compiled in place.
constexpr auto isSeparator = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };

/// Walks over a data text token by token: every blank, tab and line end closes one, also an empty one.
class TextTokens {
 public:
    explicit TextTokens(std::string_view text) : rest_(text) {}

    /// The next token, empty past the end of the text.
    std::string_view next() {
        if (++taken_ > textTokenSlots)
            throw base::Failure(base::FailureCode::SubscriptOutOfRange,
                                "The text has more than " + std::to_string(textTokenSlots) + " tokens.");
        const auto* const end = std::find_if(rest_.begin(), rest_.end(), isSeparator);
        const std::string_view token(rest_.begin(), end);
        rest_.remove_prefix(end == rest_.end() ? rest_.size() : separatorEnd(token.size()));
        return token;
    }

    bool atEnd() const { return rest_.empty(); }

 private:
    std::size_t separatorEnd(std::size_t at) const { return rest_.substr(at).starts_with("\r\n") ? at + 2 : at + 1; }

    std::string_view rest_;
    int taken_ = 0;
};

/// Counts the tokens that follow, so that a text too long for the table is refused before anything changes.
void requireTokensFit(std::string_view text) {
    if (std::count_if(text.begin(), text.end(), isSeparator) < textTokenSlots) return;
    for (TextTokens tokens(text); !tokens.atEnd();)
        tokens.next();
}

void shape(DataPanel& panel, DataKind kind, const std::vector<std::string>& sizes) {
    panel.selectKind(kind);
    const std::vector<int> boxes = sizeBoxesOf(kind);
    for (std::size_t i = 0; i < boxes.size(); ++i)
        panel.setText(boxes[i], sizes[i]);
    panel.layOut();
}

/// An exported text is one quoted line; its last quote would stick to the last number.
std::string_view withoutQuotes(std::string_view text) {
    if (!text.starts_with('"')) return text;
    text.remove_prefix(1);
    const std::size_t last = text.find_last_not_of(" \r\n");
    return last != std::string_view::npos && text[last] == '"' ? text.substr(0, last) : text;
}

}  // namespace

bool importText(DataPanel& panel, std::string_view text) {
    text = withoutQuotes(text);
    requireTokensFit(text);
    TextTokens tokens(text);
    const TextTag* tag = findTag(tokens.next());
    if (tag == nullptr) return false;
    std::vector<std::string> sizes;
    for (std::size_t i = 0; i < sizeBoxesOf(tag->kind).size(); ++i)
        sizes.emplace_back(tokens.next());

    DataPanel trial;
    shape(trial, tag->kind, sizes);
    shape(panel, tag->kind, sizes);
    panel.reserveRows(panel.gridRows() - 1);
    for (int row = 1; row < panel.gridRows(); ++row)
        for (int column = 1; column <= tag->rowTokens; ++column)
            panel.setCell(column, row, std::string(tokens.next()));
    return true;
}

}  // namespace tessaplot::data

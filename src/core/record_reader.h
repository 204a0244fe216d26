#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "data/scaling.h"
#include "graphs/graph.h"
#include "scene/axis.h"

namespace tessaplot::core {

/// The table of a document's tokens and the place where reading stands. Tokens past the end of the text are empty, as
/// far as the table's slots go.
class TokenReader {
 public:
    /// Splits `text` at every single blank. `text` must outlive the reader. Throws SubscriptOutOfRange for more tokens
    /// than `slots`.
    TokenReader(std::string_view text, std::size_t slots);

    /// The token at the place plus `ahead`. Throws SubscriptOutOfRange past the last slot.
    std::string_view peek(std::size_t ahead = 0) const;
    std::string_view token();
    int integer();
    double number();
    /// True for "1" and "True".
    bool boolean();
    /// True for "1" only.
    bool strictBoolean();
    /// Sets `value` from a text between "@" marks; leaves it if there is none.
    void string(std::string& value);

 private:
    std::vector<std::string_view> tokens_;
    std::size_t slots_;
    std::size_t at_ = 0;
};

/// Reads one graph record of a generation, 0 to 4. What the generation lacks keeps its value.
void readGraphRecord(TokenReader& in, int generation, graphs::Cls9& graph, data::GriddingChoice& gridding);

void readAxisRecord(TokenReader& in, scene::Cls3& axis);

void readScaleRecord(TokenReader& in, data::Scaling& scaling);

}  // namespace tessaplot::core

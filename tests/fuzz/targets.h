#pragma once

#include <array>
#include <string_view>

/// What the fuzzers run: one function for each routine that reads bytes from outside the program. Each takes any bytes
/// and returns for those that the routine refuses with a `base::Failure`; any other exception is a fault, and so is a
/// broken property, which throws std::logic_error.
namespace tessaplot::fuzz {

void document(std::string_view bytes);     ///< A document file, read and written again.
void scene(std::string_view bytes);        ///< A document file, opened and recorded as long as its data are few.
void text_import(std::string_view bytes);  ///< A data text.
void formula(std::string_view bytes);      ///< A formula, and a postfix text.
void number_text(std::string_view bytes);  ///< The text of a number, and the bits of one.
void raw_picture(std::string_view bytes);  ///< A raw picture file that becomes a texture.
void paste_graph(std::string_view bytes);  ///< A graph on the clipboard, pasted into an open document.
void paste_cells(std::string_view bytes);  ///< Two bytes for the place, then a table on the clipboard.

struct Target {
    const char* name;
    void (*run)(std::string_view bytes);
};

inline constexpr std::array targets{
    Target{"document", document},       Target{"scene", scene},
    Target{"text_import", text_import}, Target{"formula", formula},
    Target{"number_text", number_text}, Target{"raw_picture", raw_picture},
    Target{"paste_graph", paste_graph}, Target{"paste_cells", paste_cells},
};

}  // namespace tessaplot::fuzz

#include <string>
#include <string_view>

#include "gl/argument_text.h"
#include "gl/call_forms.h"
#include "gl/display_list.h"

namespace tessaplot::gl {

namespace {

void appendQuoted(std::string& out, const std::string& text) {
    constexpr std::string_view hex = "0123456789abcdef";
    out += '"';
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (byte < 32 || byte > 126) {
            out += "\\x";
            out += hex[byte / 16];
            out += hex[byte % 16];
        } else {
            out += c;
        }
    }
    out += '"';
}

void appendCall(std::string& out, const DisplayList& list, const Operation& operation) {
    const CallForm form = formOf(operation.op);
    out += form.name;
    std::size_t kind = 0;
    for (const double number : operation.numbers) {
        const char letter = kind < form.arguments.size() ? form.arguments[kind] : '*';
        out += ' ';
        out += argumentText(letter, number);
        if (letter != '*') ++kind;
    }
    if (operation.op == Op::CallListsText) {
        out += ' ';
        appendQuoted(out, list.text(operation.object));
    }
    if (operation.op == Op::TexImage2D) {
        const TextureImage& image = *list.image(operation.object);
        out += ' ' + std::to_string(image.width) + ' ' + std::to_string(image.height) + ' ' +
               std::to_string(image.channels);
    }
    out += '\n';
}

void appendList(std::string& out, const DisplayList& list) {
    list.forEach([&](const Operation& operation) {
        if (operation.op == Op::CallList)
            appendList(out, *list.called(operation.object));
        else
            appendCall(out, list, operation);
    });
}

}  // namespace

std::string toText(const DisplayList& list) {
    std::string out;
    appendList(out, list);
    return out;
}

}  // namespace tessaplot::gl

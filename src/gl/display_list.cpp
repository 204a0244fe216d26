#include "gl/display_list.h"

#include <utility>

namespace tessaplot::gl {

void DisplayList::glCallLists(GLenum type, std::string_view text) {
    record(Op::CallListsText, text.size(), type);
    texts_.emplace_back(text);
}

void DisplayList::glTexImage2D(std::shared_ptr<const TextureImage> image) {
    record(Op::TexImage2D);
    images_.push_back(std::move(image));
}

void DisplayList::glCallList(DisplayListPtr list) {
    record(Op::CallList);
    lists_.push_back(std::move(list));
}

void DisplayList::append(const DisplayList& from, const Operation& operation) {
    ops_.push_back(operation.op);
    numbers_.insert(numbers_.end(), operation.numbers.begin(), operation.numbers.end());
    if (numberCount(operation.op) < 0) lengths_.push_back(static_cast<std::uint8_t>(operation.numbers.size()));
    if (operation.op == Op::CallListsText) texts_.push_back(from.text(operation.object));
    if (operation.op == Op::CallList) lists_.push_back(from.called(operation.object));
    if (operation.op == Op::TexImage2D) images_.push_back(from.image(operation.object));
}

void DisplayList::reserve(std::size_t operations, std::size_t numbers) {
    ops_.reserve(operations);
    numbers_.reserve(numbers);
}

std::size_t DisplayList::bytes() const {
    return ops_.capacity() * sizeof(Op) + numbers_.capacity() * sizeof(double) + lengths_.capacity();
}

}  // namespace tessaplot::gl

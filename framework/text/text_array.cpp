#include "framework/text/text_array.h"

#include "framework/text/failures.h"

#include <algorithm>

namespace norvane {

void TextArray::set(std::size_t index, std::string_view text) {
    at(index);
    Piece &piece = pieces_[index];
    if (text.size() > piece.size) {
        piece.offset = bytes_.size();
        bytes_.append(text);
    } else {
        std::copy(text.begin(), text.end(),
                  bytes_.begin() + static_cast<std::ptrdiff_t>(piece.offset));
    }
    piece.size = text.size();
}

void TextArray::reserve(std::size_t texts, std::size_t bytes) {
    pieces_.reserve(texts);
    bytes_.reserve(bytes);
}

void TextArray::failOutOfBounds(std::size_t index) const {
    throw OutOfBoundsException("entry " + std::to_string(index + 1) +
                               " is missing from a list of " + std::to_string(size()) + ".");
}

} // namespace norvane

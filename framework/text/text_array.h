#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

/// An array of texts, indexed from 0, kept in one block of memory: hundreds of thousands of short
/// texts cost little more than their bytes.
class TextArray {
  public:
    std::size_t size() const { return pieces_.size(); }
    bool empty() const { return pieces_.empty(); }

    /// The text at `index`; throws OutOfBoundsException past the end. The view holds until the
    /// array is changed.
    std::string_view operator[](std::size_t index) const {
        const Piece &piece = at(index);
        return {bytes_.data() + piece.offset, piece.size};
    }

    /// At least as many bytes as the texts have together.
    std::size_t byteCount() const { return bytes_.size(); }

    /// Puts `text`, which must not be a view of this array, in the place of the text at `index`;
    /// throws OutOfBoundsException past the end.
    void set(std::size_t index, std::string_view text);

    void Append(std::string_view text) {
        pieces_.push_back({bytes_.size(), text.size()});
        bytes_.append(text);
    }

    /// Appends the text that `write`, called once with the bytes to append to, puts there.
    template <class Writer>
    void appendWith(Writer write) {
        const std::size_t offset = bytes_.size();
        write(bytes_);
        pieces_.push_back({offset, bytes_.size() - offset});
    }

    /// Reserves room for `texts` texts of `bytes` bytes together.
    void reserve(std::size_t texts, std::size_t bytes);

    /// Empties the array and gives its memory back.
    void clear() { *this = TextArray(); }

  private:
    struct Piece {
        std::size_t offset;
        std::size_t size;
    };
    const Piece &at(std::size_t index) const {
        if (index >= pieces_.size())
            failOutOfBounds(index);
        return pieces_[index];
    }
    [[noreturn]] void failOutOfBounds(std::size_t index) const;

    std::string bytes_;
    std::vector<Piece> pieces_;
};

} // namespace norvane

#pragma once

#include <bitset>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace norvane {

/// Where a pattern matched: the first byte and the length in bytes.
struct RegExMatch {
    std::size_t start;
    std::size_t length;
};

/// A search for a pattern, ignoring case and not anchored. A pattern is a row of items that each
/// take one character: a literal, "." (any), "\d" (an ASCII digit), "\" before a character that
/// stands for itself, and "[...]" or "[^...]" (one, or none, of the ASCII characters listed). There
/// is no repetition.
class RegEx {
  public:
    /// A search for `SearchPattern`.
    explicit RegEx(std::string_view SearchPattern);

    /// The first match in `text`, or nothing.
    std::optional<RegExMatch> Search(std::string_view text) const;

  private:
    /// The bytes that an item takes. Only "." and "[^...]" take bytes beyond ASCII; since nothing
    /// repeats and nothing is captured, one byte of a longer character is as good as all of it.
    using ByteSet = std::bitset<256>;
    static ByteSet takeItem(std::string_view &pattern);

    std::vector<ByteSet> items_;
    std::optional<char> onlyByte_; // of a pattern that is a single character without case
};

} // namespace norvane

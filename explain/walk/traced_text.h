#pragma once

#include "framework/text/text.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

// A line's text goes through some twenty changes, and an explanation may ask what became of
// each digit. The changes keep the order of what they leave, and none inserts more bytes than it
// removes. So a byte needs no history: it comes from all of the source between two places,
// but for what was deleted in between, and both places never fall from one byte to the next.

/// A text that is changed step by step and whose bytes know where in its source they come from.
class TracedText {
  public:
    using Place = std::uint32_t; // a byte of the source

    /// Where a byte of the text comes from: between two places, both included, from what is not
    /// gone. What was put into an empty text comes from nothing: its last place is before its
    /// first.
    struct Origin {
        Place first = 1;
        Place lastAndMark = 0;

        Place last() const { return lastAndMark & ~kUntouched; }
        bool isUntouched() const { return (lastAndMark & kUntouched) != 0; } // the source's own
    };
    static constexpr Place kUntouched = Place{1} << 31U;

    /// Throws OutOfBoundsException for a source of 2 GiB and more.
    explicit TracedText(std::string_view source);

    std::string_view text() const { return text_; }
    const Origin &originOf(std::size_t byte) const { return origins_[byte]; }

    /// The bytes of the text, from the first to before the second, that may come from the source
    /// between two places, the second not included.
    std::pair<std::size_t, std::size_t> bytesBetween(std::size_t start, std::size_t end) const;

    /// Whether a byte of the text comes from the source between two places, the second not
    /// included.
    bool comesFrom(std::size_t byte, std::size_t start, std::size_t end) const;

    /// The same as ReplaceAll, ReplaceAllB and Replace. `with` is no longer than `find`. `see` gets
    /// the first byte and the size of each piece before it is replaced.
    template <class See>
    void replaceAll(std::string_view find, std::string_view with, See see) {
        Edit edit(*this);
        for (std::size_t at = findIgnoringCase(text_, find); at != std::string::npos;
             at = findIgnoringCase(text_, find, at + find.size())) {
            see(at, find.size());
            edit.replace(at, find.size(), with);
        }
    }
    void replaceAll(std::string_view find, std::string_view with) {
        replaceAll(find, with, [](std::size_t, std::size_t) {});
    }
    void replaceAllB(std::string_view find, std::string_view with);
    void replaceFirst(std::string_view find, std::string_view with);

    /// Puts a text into an empty one.
    void fill(std::string_view with);

    /// Replaces pieces in one go through the text, in its room.
    class Edit {
      public:
        explicit Edit(TracedText &text) : text_(text) {}
        Edit(const Edit &) = delete;
        Edit &operator=(const Edit &) = delete;
        ~Edit();

        /// `start` is not before the end of the piece before, and `with` not longer than `size`.
        void replace(std::size_t start, std::size_t size, std::string_view with);

      private:
        void keepUpTo(std::size_t end);

        TracedText &text_;
        std::size_t kept_ = 0; // how much of the result is in its place
        std::size_t read_ = 0; // how much of the text is done
    };

  private:
    std::string text_;
    std::vector<Origin> origins_;
    std::vector<bool> gone_;
};

} // namespace norvane

#pragma once

#include "explain/standard/scc_line.h"
#include "explain/walk/traced_text.h"

#include <set>

namespace norvane {

/// Digits that a row of the chain took from several words, or from the middle of one: a key that
/// nobody sent.
struct Crossing {
    struct Part {
        std::size_t word; // index of the line's words
        std::string digits;
    };
    std::size_t row; // of the chain
    std::string key; // the digits, as they came together
    std::vector<Part> parts;
    std::size_t first = 0; // of the digits, in the hex text
    std::size_t last = 0;
};

/// What became of one or several neighbouring words.
struct WordFate {
    std::string text;      // what of the entry comes from them, when it does not from words before
    bool isBlank = false;  // nothing but blanks comes from them
    bool isShared = false; // something comes from them
    std::string kept;      // those of their digits that stand in the entry as they are
    std::string swallowed; // those that a crossing took
};

/// The way of a data line's hex text to its entry.
class LineWalk {
  public:
    /// The line must outlive the walk and must not be refused.
    explicit LineWalk(const SccLine &line);

    /// The text of the line's entry, as the transcript has it in the timecode form and the line
    /// form; nothing when the codes leave a single character, so that there is no entry.
    const std::optional<std::string> &entry() const { return entry_; }

    const std::vector<Crossing> &crossings() const { return crossings_; }

    /// The fate of `count` words from the word `first` on.
    WordFate fateOf(std::size_t first, std::size_t count) const;

    /// What stands in the entry for the hex text from `start` to before `end`.
    std::string entryOf(std::size_t start, std::size_t end) const;

  private:
    /// A byte of the entry and where it comes from.
    struct Byte {
        char text;
        bool untouched; // it is the source's own
        std::vector<std::size_t> sources;
    };

    void findCrossings(const TracedText &text);
    std::vector<std::size_t> bytesOf(std::size_t first, std::size_t count) const;

    const SccLine &line_;
    std::optional<std::string> entry_;
    std::vector<Byte> bytes_;
    std::vector<std::vector<std::size_t>> bytesOf_; // by word: those of bytes_ that come from it
    std::vector<Crossing> crossings_;
    std::vector<std::set<std::size_t>> swallowedOf_; // by word: places of the hex text
};

} // namespace norvane

#pragma once

#include "explain/standard/scc_line.h"
#include "explain/walk/plain_words.h"
#include "explain/walk/traced_text.h"

#include <optional>

namespace norvane {

/// Digits that a row of the chain took from several words, or from the middle of one: a key that
/// was never sent as a word.
struct Crossing {
    static constexpr std::size_t kMost = 4;        // digits of a key
    std::uint16_t row = 0;                         // of the chain
    std::uint8_t count = 0;                        // of the digits
    std::array<TracedText::Place, kMost> places{}; // of the digits in the hex text

    std::size_t first() const { return places[0]; }
    std::size_t last() const { return places.at(count - 1U); }
};

/// What became of one or several neighbouring words.
struct WordFate {
    std::string_view text{}; // what in the entry comes from them, and not from words
                             // before
    bool isBlank = false;    // nothing but blanks comes from them
    bool isShared = false;   // something comes from them
    std::string kept{};      // those of their digits that are in the entry unchanged
    std::string swallowed{}; // those that a crossing took
};

/// What a word leaves to the transcript, beside what a viewer sees of it.
enum class WordClass : std::uint8_t {
    unknown,
    nothing, // a filler, which nobody sees
    same,    // the characters that a viewer reads
    blank,   // a blank, where something separates what a viewer reads
    deleted, // nothing, where something separates it
    other,
};

/// Follows a data line's hex text to its entry.
class LineWalk {
  public:
    /// Walks a line that is not refused, which must outlive all calls about it. To be called for
    /// one line after another, so that memory is reused.
    void walk(const SccLine &line);

    /// The text of the line's entry, as the transcript has it in the timecode form and the line
    /// form; nothing when the codes leave a single character, so that there is no entry.
    const std::optional<std::string_view> &entry() const { return entry_; }

    /// By their rows, and by their places in one row.
    const std::vector<Crossing> &crossings() const { return crossings_; }

    /// Whether each word was decoded by itself.
    bool isPlain() const { return isPlain_; }

    /// Whether digits of a word stay, in a plain line.
    bool keepsDigits(std::size_t word) const;

    /// Of a word of the line, by itself. WordClass::other in a line that is not plain, fillers
    /// aside.
    WordClass classOf(std::size_t word) const;

    /// The fate of `count` words from the word `first` on.
    WordFate fateOf(std::size_t first, std::size_t count) const;

    /// What the entry has for the hex text from `start` to before `end`.
    std::string entryOf(std::size_t start, std::size_t end) const;

  private:
    void trace();
    bool replaceWholeWords(TracedText &text) const;
    void seeReplacement(const TracedText &text, std::size_t row, std::size_t start,
                        std::size_t size);
    std::string plainEntryOf(std::size_t start, std::size_t end) const;
    WordFate plainFateOf(std::size_t first, std::size_t count) const;

    WordClass findClass(const SccWord &word) const;

    const SccLine *line_ = nullptr;
    std::optional<std::string_view> entry_;
    bool isPlain_ = false;
    PlainWords plain_;
    std::optional<TracedText> traced_; // the entry of a line that is not plain
    std::vector<Crossing> crossings_;
    mutable std::vector<WordClass> classes_ = std::vector<WordClass>(0x10000); // by code, as found
    std::vector<bool> swallowed_; // the places of crossings; empty without any
};

} // namespace norvane

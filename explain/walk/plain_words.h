#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

/// The entry of a line whose words are each decoded by themselves, as in nearly all lines: what
/// became of a word is then known without a walk.
class PlainWords {
  public:
    /// Takes a hex text; false, and nothing else may be called, when it needs a walk. To be called
    /// for one line after another, so that memory is reused.
    bool read(std::string_view hexText);

    /// Of the transcript in the timecode form and the line form.
    const std::string &entry() const { return entry_; }

    // For `count` words from the word `first` on:

    /// What in the entry comes from them, without what they share with words before them.
    std::string_view textOf(std::size_t first, std::size_t count) const;
    /// Whether anything in it comes from them, and whether that is only blanks.
    bool isShared(std::size_t first, std::size_t count) const;
    bool isBlank(std::size_t first, std::size_t count) const;

  private:
    std::string_view captionOf(std::size_t first, std::size_t count) const;
    void foldBlanks();

    std::string caption_;
    std::string entry_;
    // By word: the end of what comes from it.
    std::vector<std::size_t> captionEnds_;
    std::vector<std::size_t> entryEnds_;
};

} // namespace norvane

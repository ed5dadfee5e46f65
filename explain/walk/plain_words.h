#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

/// The entry of a line each of whose words gives its piece by itself, as nearly all do: what became
/// of a word is then known without a walk.
class PlainWords {
  public:
    /// Takes a hex text; false, and nothing else may be asked, when it needs a walk. May be called
    /// for one line after another, which saves room.
    bool read(std::string_view hexText);

    /// Of the transcript in the timecode form and the line form.
    const std::string &entry() const { return entry_; }

    // For `count` words from the word `first` on:

    /// What of the entry comes from them; what they share with words before them is the others'.
    std::string_view textOf(std::size_t first, std::size_t count) const;
    /// Whether anything in it comes from them, and whether that is but blanks.
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

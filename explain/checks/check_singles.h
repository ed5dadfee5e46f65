#pragma once

#include "explain/checks/findings.h"

namespace norvane {

/// Codes sent once in a file that sends its codes twice. CEA-608-E, B.14: control codes are sent
/// twice, and a decoder ignores the second. Files that send all of them once are a habit of the
/// trade and pass.
class SingleCheck {
  public:
    /// Counts a code as isSentTwice has it, so that the usual is known at the end.
    void count(bool repeats) { ++(repeats ? repetitions_ : codes_); }

    /// Takes the lines in their order; `hasSome` says whether codes of this one may be single. Its
    /// last code may be repeated in the next line.
    void look(const SccLine &line, bool hasSome, Findings &findings);

    void finish(Findings &findings);

  private:
    void report(Findings &findings);

    std::size_t codes_ = 0;
    std::size_t repetitions_ = 0;
    // Of the previous line, reported once the next one is known:
    std::size_t line_ = 0;
    std::string timecode_{};
    std::vector<std::size_t> frames_{};      // the first few
    std::vector<std::uint16_t> codesOnce_{}; // the same
    std::size_t count_ = 0;
};

} // namespace norvane

#pragma once

#include "explain/checks/findings.h"
#include "explain/standard/scc_line.h"

namespace norvane {

/// Looks at the words of lines that follow one another, by CEA-608.
class CodeCheck {
  public:
    void look(const SccLine &line, Findings &findings);

    /// To be called after the last line: only then is it known what is usual in the file.
    void finish(Findings &findings);

  private:
    /// What there is among the words of a line, so that a line in order costs one look.
    struct Marks {
        bool malformed = false;
        bool wrongParity = false;
        bool unknown = false;
        bool otherService = false;
        bool secondField = false;
        bool highBase = false;
        bool single = false;
    };
    /// Codes that were sent once, of the line before: its last may go on in the next.
    struct Singles {
        std::size_t line = 0;
        std::string timecode{};
        std::vector<std::size_t> frames{};  // the first few
        std::vector<std::uint16_t> codes{}; // the same
        std::size_t count = 0;
    };

    Marks marksOf(const SccLine &line);
    void lookAtSingles(const SccLine &line, bool hasSome, Findings &findings);
    void tellSingles(Findings &findings);

    std::size_t words_ = 0;
    std::size_t wrongWords_ = 0;
    std::size_t codes_ = 0;
    std::size_t repetitions_ = 0;
    Singles singles_{};
};

} // namespace norvane

#pragma once

#include "explain/checks/check_singles.h"
#include "explain/standard/scc_line.h"

namespace norvane {

/// Looks at the words of lines that follow one another. Odd parity and the codes that exist: 47 CFR
/// 79.101 and the tables of CEA-608-E; nothing of field 2 in field 1: B.11.5, B.11.6; room for a
/// roll-up above its base row: C.4; codes sent twice: see SingleCheck. Words of a second channel
/// (C.15) or of text mode (7) are permitted, but do not belong in a file of captions.
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
    Marks marksOf(const SccLine &line);

    std::size_t words_ = 0;
    std::size_t wrongWords_ = 0;
    SingleCheck singles_{};
};

} // namespace norvane

#pragma once

#include "explain/captions/caption.h"
#include "explain/checks/findings.h"
#include "explain/checks/limits.h"

namespace norvane {

/// A film in one line.
struct FilmSummary {
    std::size_t lines = 0;    // with a timecode and words
    std::size_t captions = 0; // that were shown
    bool dropFrame = false;
    std::optional<long> firstFrame{}; // with a caption
    std::optional<long> lastFrame{};  // the first without any, or the start of one that stays
    std::optional<double> fastest{};  // characters a second
    std::size_t longestRow = 0;       // characters
    int mostRows = 0;                 // at once
    std::bitset<kServiceNames.size()> services{};
    std::bitset<3> modes{}; // by CaptionMode
};

class CaptionTeller;

/// Looks at the captions of a film, by CEA-608-E: loaded captions are shown by EOC (C.10, C.11) and
/// erased in the end (C.9); a row has 32 columns (C.7), a screen at most four rows (C.6). One that
/// is on the screen for a frame or two, nobody sees. The limits are house rules; rows 5 to 11 are
/// avoided for old decoders (B.2).
class CaptionCheck {
  public:
    explicit CaptionCheck(const Limits &limits) : limits_(limits) {}

    /// Takes the captions in the order of FilmDecoder. `dropFrame` is how the film counts.
    void look(const Caption &caption, bool dropFrame, Findings &findings);

    const FilmSummary &summary() const { return summary_; }

  private:
    void sum(const Caption &caption);
    void lookAtTimes(const Caption &caption, Findings &findings);
    void lookAtGap(const Caption &caption, Findings &findings);
    void lookAtRows(const Caption &caption, Findings &findings);
    void lookAtLength(const CaptionRow &row, const CaptionTeller &teller) const;

    Limits limits_;
    FilmSummary summary_{};
    std::bitset<kServiceNames.size()> stays_{}; // whose last caption is never removed
    std::array<std::optional<long>, kServiceNames.size()> ends_{}; // of the captions before
};

/// Characters that a viewer has to read per second, at 29.97 frames; nothing for a caption that
/// stays or is removed at once.
std::optional<double> readingRateOf(const Caption &caption);

} // namespace norvane

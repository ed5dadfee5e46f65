#pragma once

#include "explain/checks/findings.h"

namespace norvane {

/// Looks at the timecodes of lines that follow one another. Hours, frames and the numbers that
/// drop-frame skips: SMPTE ST 12. The order, and room for all words at one pair of bytes per frame
/// (CEA-608), are what a player relies on; a line that repeats the previous one is an accident of
/// editing.
class TimecodeCheck {
  public:
    void look(const SccLine &line, Findings &findings);

  private:
    struct Before {
        FrameTimecode timecode;
        std::size_t line;
        long words;
    };
    void lookAtFrames(const SccLine &line, Findings &findings);
    void lookAtOrder(const SccLine &line, Findings &findings) const;
    bool comesAgain(const SccLine &line);

    std::optional<Before> before_{};
    std::optional<Before> first_{};
    std::string lineBefore_{};
    std::size_t lineBeforeNumber_ = 0;
};

} // namespace norvane

#pragma once

#include "explain/checks/findings.h"

namespace norvane {

/// Looks at the timecodes of lines that follow one another, and for lines that come twice.
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

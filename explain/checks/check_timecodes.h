#pragma once

#include "explain/checks/findings.h"
#include "explain/standard/scc_line.h"

namespace norvane {

/// Looks at the timecodes of lines that follow one another.
class TimecodeCheck {
  public:
    void look(const SccLine &line, Findings &findings);

  private:
    struct Before {
        FrameTimecode timecode;
        std::size_t line;
        long words;
    };
    std::optional<Before> before_;
    std::optional<Before> first_;
};

} // namespace norvane

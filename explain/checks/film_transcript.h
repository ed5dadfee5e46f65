#pragma once

#include "decode/data_line.h"
#include "explain/checks/problem.h"
#include "transcript/layout.h"

#include <string>
#include <string_view>

namespace norvane {

/// The body of a film's transcript, made line after line. What ends it is told with the line and
/// the cure.
class FilmTranscript {
  public:
    /// `beginning` is the film's first two lines or more; `room` an empty text, in whose room the
    /// body is put together.
    FilmTranscript(Form form, Clock clock, std::string_view beginning, std::string room);

    /// Adds the data line that is line `number` of the file. Throws Problem when it is refused or
    /// has no entry.
    void add(std::string_view line, std::size_t number);

    /// The body, which this object then no longer has.
    std::string take() { return body_.take(); }

  private:
    TranscriptBody body_;
    Clock clock_;
    std::string foreign_;
    std::string caption_{}; // kept for its room
};

/// Throws Problem when `name`, without its folder, is that of no SCC file. `otherWay` says how the
/// text of one comes in under any name.
void requireSccName(std::string_view name, std::string_view otherWay);

} // namespace norvane

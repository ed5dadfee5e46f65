#pragma once

#include "decode/data_line.h"
#include "explain/checks/problem.h"
#include "transcript/layout.h"

#include <string>
#include <string_view>

namespace norvane {

/// The body of a film's transcript, made line by line. What ends it is thrown with the line and
/// what to do.
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
    std::string caption_{}; // reused, so that it keeps its memory
};

/// Throws Problem unless `name`, without its folder, is that of an SCC file. `otherWay` says how to
/// pass in a text under any name.
void requireSccName(std::string_view name, std::string_view otherWay);

} // namespace norvane

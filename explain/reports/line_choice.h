#pragma once

#include "explain/reports/explanation.h"
#include "explain/reports/film_captions.h"

#include <limits>
#include <string>

namespace norvane {

/// What a user asks to be explained.
struct LineChoice {
    std::size_t firstLine = 1; // of the file
    std::size_t lastLine = std::numeric_limits<std::size_t>::max();
    std::string text{};   // in an entry, or in what is seen; ASCII case does not count
    std::string time{};   // of a line or a caption, as isTime has it
    bool advised = false; // only what has something to correct

    bool isInRange(std::size_t line) const { return line >= firstLine && line <= lastLine; }
};

/// Whether a text is a time as a film writes it, "HH:MM:SS:FF" or with ";" before the frames, or as
/// a transcript does, "HH:MM:SS.hh" or without the hundredths.
bool isTime(std::string_view text);

/// Chooses lines of a film.
class LineChooser {
  public:
    /// Both must outlive the chooser.
    LineChooser(const LineChoice &choice, const FilmCaptions &captions);

    bool wants(const Explanation &explanation) const;
    bool wantsHeader(std::size_t line, bool hasAdvice) const;

  private:
    bool holdsText(const Explanation &explanation) const;
    bool isAtTime(const Explanation &explanation) const;

    const LineChoice &choice_;
    const FilmCaptions &captions_;
    long frame_ = 0; // of the time
};

} // namespace norvane

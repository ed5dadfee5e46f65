#pragma once

#include "framework/text/text_array.h"

#include <string>

namespace norvane {

/// The three entry passes over a caption, in place: it loses its first two bars, one of nothing but
/// bars only the first, and what is or comes to be a single blank is emptied.
void cleanEntry(std::string &caption);

/// cleanEntry on each; their number stays.
void cleanEntries(TextArray &captions);

/// The text passes over a composed transcript, from byte `start` on, where a line starts, in place:
/// accent pairs, bars to blanks, and each run of n blanks to n / 8, rounded up.
void cleanTranscript(std::string &transcriptText, std::size_t start = 0);

} // namespace norvane

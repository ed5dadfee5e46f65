#pragma once

#include "framework/text/text.h"

#include <string>

namespace norvane {

/// The three entry passes, in place: an entry loses its first two bars, one of nothing but bars
/// only the first, and an entry that is or comes to be a single blank is emptied. The number of
/// entries stays.
void cleanEntries(TextArray &captions);

/// The text passes over a composed transcript, in place: accent pairs, bars to blanks, and each run
/// of n blanks to n / 8, rounded up.
void cleanTranscript(std::string &transcriptText);

} // namespace norvane

#pragma once

#include "framework/text.h"

#include <string>

namespace norvane {

/// The three entry passes, in place: the first two bars of an entry go (with exceptions that the
/// passes make), and an entry of one blank becomes empty. The number of entries stays.
void cleanEntries(TextArray &captions);

/// The text passes over a composed transcript, in place: accent pairs, bars to blanks, and each run
/// of n blanks to n / 8, rounded up.
void cleanTranscript(std::string &transcriptText);

} // namespace norvane

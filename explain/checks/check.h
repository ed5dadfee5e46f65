#pragma once

#include "explain/checks/findings.h"
#include "explain/walk/line_walk.h"

namespace norvane {

/// The findings on a whole file, in the order of its lines. Any text is taken.
std::vector<Finding> check(std::string_view text, const FindingKinds &wanted);

/// Where the transcript of a line is not what its words say, though they are sound: digits that
/// stay, and words that the chain alters.
void checkEntry(const SccLine &line, const LineWalk &walk, Findings &findings);

} // namespace norvane

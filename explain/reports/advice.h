#pragma once

#include "explain/walk/line_walk.h"

namespace norvane {

/// Adds what a reader should know of an entry though neither the file nor the transcript is wrong:
/// characters that come twice, hyphens for styles, words that a deleted code parted, and the like.
void adviseOnEntry(const SccLine &line, const LineWalk &walk, std::vector<std::string> &advice);

} // namespace norvane

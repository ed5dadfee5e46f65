#pragma once

#include "decode/data_line.h"
#include "framework/text/failures.h"

#include <string>
#include <string_view>

// SCC has no public standard. What counts as a data line is what the decode takes; what is guessed
// here are the accidents of the trade: renamed subtitles, editors that save UTF-16 or spaces in the
// place of tabs, comments.

namespace norvane {

/// What a text (the first two lines are enough) is instead of an SCC file, UTF-16, subtitles in
/// another format, or only NULs, and what to do; empty when it may be an SCC file.
std::string foreignFormat(std::string_view text);

/// What is wrong with a line that was refused, in a file of no foreign format, and what to do.
std::string refusalHelp(std::string_view line);

/// What to do about a data line whose entry failed.
std::string entryHelp(const DataLine &line, Clock clock);

/// What a failure of an entry means, and what to do.
std::string noEntry(const OutOfBoundsException &failure, const DataLine &line, Clock clock);

} // namespace norvane

#pragma once

#include "decode/data_line.h"
#include "framework/text/failures.h"

#include <string>
#include <string_view>

namespace norvane {

/// What a text, of which the first two lines are enough, is when it is no SCC file at all but
/// UTF-16, subtitles of another format, or nothing but NULs, and what to do; empty when it may be
/// one.
std::string foreignFormat(std::string_view text);

/// What stands in a line that was refused, and what to do, in a file of no foreign format.
std::string refusalHelp(std::string_view line);

/// What to do about a data line whose entry failed.
std::string entryHelp(const DataLine &line, Clock clock);

/// What a failure of an entry means, and what to do.
std::string noEntry(const OutOfBoundsException &failure, const DataLine &line, Clock clock);

} // namespace norvane

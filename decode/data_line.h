#pragma once

#include "framework/text/line_reader.h"
#include "framework/text/text_array.h"

#include <string_view>
#include <variant>
#include <vector>

/// A Scenarist Closed Caption file as the program reads it: lines that are not empty, the first of
/// them a header that nobody looks at, and all others data lines.
namespace norvane {

/// Whether the name of a file, without its folder, holds "scc" in either case and a character
/// before it. Another file is not read.
bool isSccName(std::string_view name);

/// The message for another file.
extern const std::string_view kNotSccMessage;

/// The lines of a file that count, the header first: views of `text`.
std::vector<std::string_view> keptLines(std::string_view text);

/// A data line: its timecode, "HH:MM:SS:FF" or with ";" before the frames where the frame numbers
/// drop (SMPTE ST 12), and its hex text, words of four hex digits separated by blanks (CEA-608 byte
/// pairs with odd parity). Neither is checked.
struct DataLine {
    std::string_view timecode;
    std::string_view hexText;
};

/// Why a line is no data line.
enum class Refusal { noTimecode, noTab };

/// The message for a refusal.
std::string_view messageOf(Refusal refusal);

/// Splits a data line: what precedes its first tab, and what follows that up to a second one.
/// Without two digits and a colon somewhere in it, or without a tab, it is refused.
std::variant<DataLine, Refusal> takeApart(std::string_view line);

/// Start times: moved later by the time that the hex text takes to reach a decoder's buffer, or as
/// the file has them.
enum class Clock { unbuffered, scc };

/// The start time of a data line. Throws OutOfBoundsException when the unbuffered clock finds fewer
/// than four fields in the timecode.
std::string startTime(const DataLine &line, Clock clock);

/// Appends the start time of a data line and then its caption, each to its array. Throws as
/// startTime and appendCaption do; kept: in the second case the start time is there already.
void appendEntry(const DataLine &line, Clock clock, TextArray &timecodes, TextArray &captions);

} // namespace norvane

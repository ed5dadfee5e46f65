#include "explain/checks/refusal_help.h"

#include "explain/standard/scc_header.h"
#include "explain/standard/timecode_frames.h"
#include "framework/text/line_reader.h"
#include "framework/text/text.h"

namespace norvane {

namespace {

bool holdsOnly(std::string_view text, std::string_view characters) {
    return text.find_first_not_of(characters) == std::string_view::npos;
}

using namespace std::string_view_literals;
constexpr std::string_view kNul = "\0"sv;

} // namespace

std::string foreignFormat(std::string_view text) {
    if (!text.empty() && holdsOnly(text, kNul))
        return "The file contains only NUL bytes, as after a failed copy: request a new copy.";
    if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF") ||
        text.substr(0, 2).find('\0') != std::string_view::npos)
        return "The file is UTF-16: save it as plain text or UTF-8.";
    text = withoutByteOrderMark(text);
    if (text.starts_with("WEBVTT"))
        return "This is a WebVTT file with the name of an SCC file: request the SCC file.";
    LineReader lines(text);
    const std::string_view number = lines.nextNotEmpty();
    if (!number.empty() && holdsOnly(number, "0123456789") &&
        lines.next().find(" --> ") != std::string_view::npos)
        return "This is a SubRip file with the name of an SCC file: request the SCC file.";
    return "";
}

std::string refusalHelp(std::string_view line) {
    constexpr std::size_t kTimecodeSize = 11;
    if (holdsOnly(line, kNul)) {
        return "The line contains only NUL bytes, as after a failed copy: request a new copy.";
    }
    if (holdsOnly(line, " \t")) {
        return "The line contains only spaces, and only empty lines are skipped: delete it.";
    }
    for (const std::string_view comment : {"//", "/*", "#", ";", "--", "NOTE"}) {
        if (line.starts_with(comment))
            return "The line looks like a comment, but SCC files cannot have comments: delete it.";
    }
    if (readFrameTimecode(line.substr(0, kTimecodeSize)) && line.size() > kTimecodeSize &&
        line[kTimecodeSize] == ' ')
        return "The timecode is followed by a space instead of a tab: replace it, here and in "
               "all other lines.";
    return "After the header, each line must be a timecode, a tab and words of four hex digits: "
           "correct it.";
}

std::string entryHelp(const DataLine &line, Clock clock) {
    constexpr std::size_t kFields = 4;
    return clock == Clock::unbuffered &&
                   Split(ReplaceAll(line.timecode, ";", ":"), ":").size() < kFields
               ? "Write HH:MM:SS:FF, or keep the SCC timecode."
               : "Characters are read in pairs: correct the words of this line.";
}

std::string noEntry(const OutOfBoundsException &failure, const DataLine &line, Clock clock) {
    return "No transcript can be written: " + std::string(failure.what()) + " " +
           entryHelp(line, clock);
}

} // namespace norvane

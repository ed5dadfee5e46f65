#include "decode/data_line.h"

#include "decode/caption.h"
#include "decode/timecode.h"
#include "framework/text/reg_ex.h"
#include "framework/text/text.h"

namespace norvane {

namespace {

/// Whether two digits and a colon stand somewhere in a line, which nearly all begin with.
bool holdsTimecode(std::string_view line) {
    if (line.size() > 2 && isDigit(line[0]) && isDigit(line[1]) && line[2] == ':')
        return true;
    static const RegEx patternRegEx{R"(\d\d\:)"};
    return patternRegEx.Search(line);
}

} // namespace

constexpr std::string_view kNotSccMessage = "This file does not have the .scc extension.";

bool isSccName(std::string_view name) {
    const RegEx patternRegEx{".scc"};
    return patternRegEx.Search(name);
}

std::vector<std::string_view> keptLines(std::string_view text) {
    constexpr std::size_t kShortLine = 80; // bytes; room for more lines than nearly all files have
    std::vector<std::string_view> lineArray;
    lineArray.reserve(text.size() / kShortLine);
    LineReader lines(text);
    for (auto line = lines.nextNotEmpty(); !line.empty(); line = lines.nextNotEmpty())
        lineArray.push_back(line);
    return lineArray;
}

std::string_view messageOf(Refusal refusal) {
    return refusal == Refusal::noTimecode
               ? "There does not appear to be any timecode in this file."
               : "This SCC file does not appear to be formatted correctly. It needs to have a tab "
                 "between the timecode and the hexidecimal caption code.";
}

// In place of a `tabRegEx` and of a `fieldArray` that the line is split into: one look for each
// tab.
std::variant<DataLine, Refusal> takeApart(std::string_view line) {
    if (!holdsTimecode(line))
        return Refusal::noTimecode;
    const std::size_t tab = line.find('\t');
    if (tab == std::string_view::npos)
        return Refusal::noTab;
    const std::string_view behind = line.substr(tab + 1);
    return DataLine{line.substr(0, tab), behind.substr(0, behind.find('\t'))};
}

std::string startTime(const DataLine &line, Clock clock) {
    return clock == Clock::unbuffered ? unbufferedTimecode(line.timecode, line.hexText)
                                      : std::string(line.timecode);
}

void appendEntry(const DataLine &line, Clock clock, TextArray &timecodes, TextArray &captions) {
    timecodes.Append(startTime(line, clock));
    captions.appendWith([&](std::string &texts) { appendCaption(texts, line.hexText); });
}

} // namespace norvane

#include "decode/data_line.h"

#include "decode/caption.h"
#include "decode/timecode.h"
#include "framework/text/line_reader.h"
#include "framework/text/regex.h"

namespace norvane {

constexpr std::string_view kNotSccMessage = "This file does not have the .scc extension.";

bool isSccName(std::string_view name) {
    static const RegEx patternRegEx(".scc");
    return patternRegEx.Search(name).has_value();
}

std::vector<std::string_view> keptLines(std::string_view text) {
    constexpr std::size_t kShortLine = 80; // bytes; room for more lines than nearly all files have
    std::vector<std::string_view> lineArray;
    lineArray.reserve(text.size() / kShortLine);
    for (LineReader lines(text); !lines.atEnd();) {
        const std::string_view line = lines.next();
        if (!line.empty())
            lineArray.push_back(line);
    }
    return lineArray;
}

std::size_t lineNumber(std::string_view text, std::string_view line) {
    std::size_t number = 0;
    LineReader lines(text);
    do {
        ++number;
    } while (lines.next().data() < line.data() && !lines.atEnd());
    return number;
}

std::string_view messageOf(Refusal refusal) {
    return refusal == Refusal::noTimecode
               ? "There does not appear to be any timecode in this file."
               : "This SCC file does not appear to be formatted correctly. It needs to have a tab "
                 "between the timecode and the hexidecimal caption code.";
}

std::variant<DataLine, Refusal> takeApart(std::string_view line) {
    static const RegEx patternRegEx("\\d\\d\\:");
    if (!patternRegEx.Search(line))
        return Refusal::noTimecode;
    const std::size_t tab = line.find('\t');
    if (tab == std::string_view::npos)
        return Refusal::noTab;
    const std::string_view behind = line.substr(tab + 1);
    return DataLine{line.substr(0, tab), behind.substr(0, behind.find('\t'))};
}

void appendEntry(const DataLine &line, Clock clock, TextArray &timecodes, TextArray &captions) {
    if (clock == Clock::unbuffered)
        timecodes.Append(unbufferedTimecode(line.timecode, line.hexText));
    else
        timecodes.Append(line.timecode);
    captions.appendWith([&](std::string &texts) { appendCaption(texts, line.hexText); });
}

} // namespace norvane

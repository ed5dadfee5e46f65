#include "explain/reports/report.h"

#include "explain/reports/json.h"
#include "framework/text/text.h"

#include <algorithm>

namespace norvane {

namespace {

std::string placeOf(std::string_view file, std::size_t line) {
    return printable(file) + ":" + std::to_string(line) + ": ";
}

std::string padded(std::string text, std::size_t width) {
    text.append(width - std::min(width, Len(text)), ' ');
    return text;
}

std::string timesOf(const ExplainedWord &word) {
    const std::string digits = printable(word.digits);
    return word.times == 1   ? digits
           : word.times == 2 ? digits + " " + digits
                             : digits + " x" + std::to_string(word.times);
}

std::string nameOf(const ExplainedWord &word) {
    return std::string(word.name).append(word.wrongParity ? ", wrong parity" : "");
}

std::string headOf(const SccLine &line, const std::optional<std::size_t> &shownAt) {
    std::string head = printable(line.data.timecode);
    if (line.timecode)
        head += line.timecode->dropFrame ? ", drop-frame" : ", non-drop";
    head += ", " + counted(static_cast<long>(line.words.size()), "word");
    if (line.mode != Mode::unknown)
        head.append(", ").append(nameOf(line.mode));
    if (shownAt) {
        head += ", shown at +" + std::to_string(*shownAt);
        if (line.timecode) {
            head += " (" +
                    frameTimecode(line.timecode->count() + static_cast<long>(*shownAt),
                                  line.timecode->dropFrame) +
                    ")";
        }
    }
    return head;
}

std::string wordsAsJson(const std::vector<ExplainedWord> &words) {
    std::string list;
    for (const ExplainedWord &word : words) {
        JsonObject object;
        object.add("frame", word.frame);
        object.add("word", word.digits);
        object.add("times", word.times);
        object.add("service", nameOf(word.service));
        object.add("name", word.name);
        object.add("parity", !word.wrongParity);
        object.add("text", word.fate.text);
        object.add("kept", word.fate.kept);
        object.add("swallowed", word.fate.swallowed);
        list.append(list.empty() ? "" : ",").append(object.text());
    }
    return "[" + list + "]";
}

std::string listAsJson(const std::vector<std::string> &texts) {
    std::string list;
    for (const std::string &text : texts)
        list.append(list.empty() ? "" : ",").append(jsonText(text));
    return "[" + list + "]";
}

} // namespace

std::string reportOf(const Explanation &explanation, std::string_view file) {
    const SccLine &line = explanation.line;
    std::string report = placeOf(file, line.number);
    if (explanation.isHeader) {
        report += "header, passed over: " + startInQuotes(line.text) + "\n";
    } else if (line.refusal) {
        report.append(messageOf(*line.refusal)).append("\n");
    } else {
        report += headOf(line, explanation.shownAt) + "\n";
        if (explanation.entry)
            report += "entry " + std::to_string(line.entry) + " [" + printable(explanation.start) +
                      "] " + printable(*explanation.entry) + "\n";
    }
    std::size_t wordWidth = 0;
    std::size_t nameWidth = 0;
    for (const ExplainedWord &word : explanation.words) {
        wordWidth = std::max(wordWidth, Len(timesOf(word)));
        nameWidth = std::max(nameWidth, Len(nameOf(word)));
    }
    for (const ExplainedWord &word : explanation.words) {
        const std::string frame = "+" + std::to_string(word.frame);
        report += std::string(frame.size() < 4 ? 4 - frame.size() : 0, ' ') + frame + "  " +
                  padded(timesOf(word), wordWidth) + "  " +
                  padded(std::string(nameOf(word.service)), 3) + "  " +
                  padded(nameOf(word), nameWidth) + "  " +
                  (explanation.entry ? became(word.fate) : "lost") + "\n";
    }
    for (const std::string &advice : explanation.advice)
        report += "  " + advice + "\n";
    if (explanation.advice.empty())
        report += "  Nothing to correct.\n";
    return report;
}

std::string jsonOf(const Explanation &explanation, std::string_view file) {
    const SccLine &line = explanation.line;
    JsonObject object;
    object.add("file", file);
    object.add("line", line.number);
    if (explanation.isHeader) {
        object.add("header", line.text);
    } else if (line.refusal) {
        object.add("refused", messageOf(*line.refusal));
    } else {
        object.add("timecode", line.data.timecode);
        object.add("dropFrame", line.timecode && line.timecode->dropFrame);
        object.add("mode", nameOf(line.mode));
        object.add("frames", line.words.size());
        if (explanation.shownAt)
            object.add("shownAt", *explanation.shownAt);
        if (explanation.entry) {
            object.add("entry", line.entry);
            object.add("start", explanation.start);
            object.add("text", *explanation.entry);
        }
        object.addValue("words", wordsAsJson(explanation.words));
    }
    object.addValue("advice", listAsJson(explanation.advice));
    return object.text() + "\n";
}

std::string reportOf(const Finding &finding, std::string_view file) {
    return placeOf(file, finding.line)
        .append(kFindingNames.at(static_cast<std::size_t>(finding.kind)))
        .append(": ")
        .append(finding.text)
        .append("\n");
}

std::string jsonOf(const Finding &finding, std::string_view file) {
    JsonObject object;
    object.add("file", file);
    object.add("line", finding.line);
    object.add("kind", kFindingNames.at(static_cast<std::size_t>(finding.kind)));
    object.add("text", finding.text);
    return object.text() + "\n";
}

} // namespace norvane

#include "explain/reports/report.h"

#include <algorithm>

namespace norvane {

namespace {

constexpr std::string_view kNoCode = "not four hex digits";
constexpr std::string_view kWrongParity = ", wrong parity";

bool hasWrongParity(const SccWord &word) {
    return word.isCode && !word.parity;
}

std::string_view nameOf(const SccWord &word) {
    return word.isCode ? word.meaning->name : kNoCode;
}

/// How wide the columns of a line's words are, in characters.
struct Widths {
    std::size_t digits = 0;
    std::size_t name = 0;
};

std::size_t nameSize(const SccWord &word) {
    return (word.isCode ? word.meaning->nameSize : kNoCode.size()) +
           (hasWrongParity(word) ? kWrongParity.size() : 0);
}

/// "9420", "9420 9420", "8080 x5".
std::size_t digitsSize(const SccWord &word, std::size_t times) {
    const std::size_t size = word.isCode ? word.digits.size() : Len(word.digits);
    return times == 1   ? size
           : times == 2 ? 2 * size + 1
                        : size + std::string_view(" x").size() + std::to_string(times).size();
}

void addDigits(TextReport &report, const SccWord &word, std::size_t times) {
    report.add(word.digits);
    if (times == 2)
        report.add(" ").add(word.digits);
    else if (times > 2)
        report.add(" x").add(times);
}

void addPlace(TextReport &report, std::string_view file, std::size_t line) {
    report.add(file).add(":").add(line).add(": ");
}

void addHead(TextReport &report, const SccLine &line) {
    report.add(line.data.timecode);
    if (line.timecode)
        report.add(line.timecode->dropFrame ? ", drop-frame" : ", non-drop");
    report.add(", ").add(counted(static_cast<long>(line.words.size()), "word"));
    if (line.mode != Mode::unknown)
        report.add(", ").add(nameOf(line.mode));
}

/// What became of words: “Th”, deleted, blank, ...
void addFate(TextReport &report, const WordFate &fate) {
    const bool hasText = fate.isBlank || !fate.text.empty();
    if (fate.isBlank)
        report.add("blank");
    else if (hasText)
        report.add("“").add(fate.text).add("”");
    bool isFirst = !hasText;
    for (const auto &[digits, what] :
         {std::pair(&fate.swallowed, " swallowed"), {&fate.kept, " kept"}}) {
        if (digits->empty())
            continue;
        report.add(isFirst ? "" : ", ").add(*digits).add(what);
        isFirst = false;
    }
    if (isFirst)
        report.add(fate.isShared ? "read with the previous word" : "deleted");
}

void addAdvice(TextReport &report, const std::vector<std::string> &advice) {
    for (const std::string &text : advice) {
        report.add("  ").add(text);
        report.endLine();
    }
    if (advice.empty()) {
        report.add("  Nothing to correct.");
        report.endLine();
    }
}

void addAdvice(JsonWriter &json, const std::vector<std::string> &advice) {
    json.listMember("advice", advice);
}

void addWords(TextReport &report, const Explanation &explanation) {
    constexpr std::size_t kServiceWidth = 3;
    constexpr std::size_t kFrameWidth = 4;
    const SccLine &line = *explanation.line;
    Widths widths;
    for (const auto &[first, times] : explanation.words) {
        widths.digits = std::max(widths.digits, digitsSize(line.words[first], times));
        widths.name = std::max(widths.name, nameSize(line.words[first]));
    }
    for (const auto &[first, times] : explanation.words) {
        const SccWord &word = line.words[first];
        const std::string_view service = nameOf(word.service);
        const std::string frame = "+" + std::to_string(first);
        report.pad(kFrameWidth, frame.size()).add(frame).add("  ");
        addDigits(report, word, times);
        report.pad(widths.digits, digitsSize(word, times)).add("  ").add(service);
        report.pad(kServiceWidth, service.size()).add("  ").add(nameOf(word));
        report.add(hasWrongParity(word) ? kWrongParity : "").pad(widths.name, nameSize(word));
        report.add("  ");
        if (explanation.entry)
            addFate(report, explanation.walk->fateOf(first, times));
        else
            report.add("lost");
        report.endLine();
    }
}

void addWords(JsonWriter &json, const Explanation &explanation) {
    const SccLine &line = *explanation.line;
    json.name("words");
    json.beginList();
    for (const auto &[first, times] : explanation.words) {
        const SccWord &word = line.words[first];
        const WordFate fate = explanation.walk->fateOf(first, times);
        json.beginObject();
        json.member("frame", first);
        json.member("word", word.digits);
        json.member("times", times);
        json.member("service", nameOf(word.service));
        json.member("name", nameOf(word));
        json.member("parity", !hasWrongParity(word));
        json.member("text", fate.text);
        json.member("kept", std::string_view(fate.kept));
        json.member("swallowed", std::string_view(fate.swallowed));
        json.endObject();
    }
    json.endList();
}

} // namespace

void addHeader(TextReport &report, std::string_view file, std::size_t line, std::string_view header,
               const std::vector<std::string> &advice) {
    addPlace(report, file, line);
    report.add("header, ignored: ").add(startInQuotes(header));
    report.endLine();
    addAdvice(report, advice);
}

void addHeader(JsonWriter &json, std::string_view file, std::size_t line, std::string_view header,
               const std::vector<std::string> &advice) {
    json.beginObject();
    json.member("file", file);
    json.member("line", line);
    json.member("header", header);
    addAdvice(json, advice);
    json.endObject();
    json.endLine();
}

void add(TextReport &report, std::string_view file, const Explanation &explanation,
         const FilmCaptions &captions, bool screen) {
    const SccLine &line = *explanation.line;
    addPlace(report, file, line.number);
    if (line.refusal)
        report.add(messageOf(*line.refusal));
    else
        addHead(report, line);
    report.endLine();
    if (explanation.entry) {
        report.add("entry ").add(line.entry).add(" [").add(explanation.start).add("] ");
        report.add(*explanation.entry);
        report.endLine();
    }
    addSeen(report, captions, line.number, screen);
    addWords(report, explanation);
    addAdvice(report, explanation.advice);
}

void add(JsonWriter &json, std::string_view file, const Explanation &explanation,
         const FilmCaptions &captions, bool /*screen*/) {
    const SccLine &line = *explanation.line;
    json.beginObject();
    json.member("file", file);
    json.member("line", line.number);
    if (line.refusal) {
        json.member("refused", messageOf(*line.refusal));
    } else {
        json.member("timecode", line.data.timecode);
        json.member("dropFrame", line.timecode && line.timecode->dropFrame);
        json.member("mode", nameOf(line.mode));
        json.member("frames", line.words.size());
        if (explanation.entry) {
            json.member("entry", line.entry);
            json.member("start", std::string_view(explanation.start));
            json.member("text", *explanation.entry);
        }
        addWords(json, explanation);
    }
    addAdvice(json, explanation.advice);
    json.endObject();
    json.endLine();
    addSeen(json, file, captions, line.number);
}

} // namespace norvane

#include "explain/reports/explanation.h"

#include "explain/checks/check.h"
#include "explain/checks/refusal_help.h"
#include "explain/reports/advice.h"
#include "framework/text/text.h"

#include <algorithm>

namespace norvane {

namespace {

std::size_t timesSent(const std::vector<SccWord> &words, std::size_t first) {
    std::size_t end = first + 1;
    if (words[first].meaning->kind == CodeKind::filler) {
        while (end < words.size() && words[end].meaning->kind == CodeKind::filler)
            ++end;
    } else if (end < words.size() && words[end].repeats &&
               words[end].digits == words[first].digits) {
        ++end;
    }
    return end - first;
}

std::vector<ExplainedWord> explainWords(const SccLine &line, const LineWalk &walk) {
    std::vector<ExplainedWord> rows;
    for (std::size_t i = 0; i < line.words.size(); i += rows.back().times) {
        const SccWord &word = line.words[i];
        const std::size_t times = timesSent(line.words, i);
        rows.push_back({i, word.digits, times, word.service,
                        word.isCode ? word.meaning->name : std::string_view("not four hex digits"),
                        word.isCode && !word.parity, walk.fateOf(i, times)});
    }
    return rows;
}

/// A pop-on caption shows at its end; all others show as they are sent.
std::optional<std::size_t> shownAt(const SccLine &line) {
    for (std::size_t i = 0; i < line.words.size(); ++i) {
        const SccWord &word = line.words[i];
        if (word.repeats)
            continue;
        const bool isShownAtOnce = rowsOf(word.mode) > 0 || word.mode == Mode::paintOn;
        if (word.meaning->code == code::kEoc || (isShownAtOnce && isCharacters(*word.meaning)))
            return i;
    }
    return {};
}

std::vector<std::string> textsOf(const std::vector<Finding> &findings, std::size_t line) {
    std::vector<std::string> texts;
    for (const Finding &finding : findings) {
        if (finding.line == line)
            texts.push_back(finding.text);
    }
    return texts;
}

/// Where most of a file has wrong parity, one line tells it for all.
void adviseOnParity(Explanation &explanation, const std::vector<Finding> &findings) {
    const auto isWrong = [](const ExplainedWord &word) { return word.wrongParity; };
    if (std::none_of(explanation.words.begin(), explanation.words.end(), isWrong))
        return;
    const Finding *told = nullptr;
    for (const Finding &finding : findings) {
        if (finding.kind == FindingKind::parity && told == nullptr)
            told = &finding;
        if (finding.kind == FindingKind::parity && finding.line == explanation.line.number)
            return;
    }
    if (told != nullptr)
        explanation.advice.push_back(told->text);
}

} // namespace

Explanation explainHeader(std::string_view header, std::size_t number,
                          const std::vector<Finding> &findings) {
    Explanation explanation;
    explanation.isHeader = true;
    explanation.line.number = number;
    explanation.line.text = header;
    explanation.advice = textsOf(findings, number);
    return explanation;
}

Explanation explain(const SccLine &line, Clock clock, const std::vector<Finding> &findings) {
    Explanation explanation;
    explanation.line = line;
    explanation.advice = textsOf(findings, line.number);
    if (line.refusal) {
        if (explanation.advice.empty() && !findings.empty())
            explanation.advice.push_back(findings.front().text); // on a file of another format
        return explanation;
    }
    TextArray timecodes;
    TextArray captions;
    try {
        appendEntry(line.data, clock, timecodes, captions);
    } catch (const OutOfBoundsException &failure) {
        const std::string help = noEntry(failure, line.data, clock);
        std::vector<std::string> &advice = explanation.advice;
        if (std::find(advice.begin(), advice.end(), help) == advice.end())
            advice.push_back(help);
    }
    const LineWalk walk(line);
    if (!timecodes.empty())
        explanation.start = Replace(timecodes[0], ",", ".");
    if (!captions.empty())
        explanation.entry = walk.entry();
    explanation.words = explainWords(line, walk);
    explanation.shownAt = shownAt(line);
    adviseOnParity(explanation, findings);
    Findings ofEntry{FindingKinds().set()};
    checkEntry(line, walk, ofEntry);
    for (const Finding &finding : ofEntry.list())
        explanation.advice.push_back(finding.text);
    adviseOnEntry(line, walk, explanation.advice);
    return explanation;
}

std::string became(const WordFate &fate) {
    std::string text;
    if (fate.isBlank)
        text = "blank";
    else if (!fate.text.empty())
        text = inQuotes(fate.text);
    for (const auto &[digits, what] :
         {std::pair(fate.swallowed, " swallowed"), {printable(fate.kept), " kept"}}) {
        if (!digits.empty())
            text += (text.empty() ? "" : ", ") + digits + what;
    }
    return !text.empty() ? text : fate.isShared ? "read with the word before" : "deleted";
}

} // namespace norvane

#include "explain/checks/check_codes.h"

#include "framework/text/text.h"

#include <algorithm>
#include <unordered_set>

namespace norvane {

namespace {

/// The words of a line that are so, each once.
template <class Is>
std::vector<const SccWord *> wordsThat(const SccLine &line, Is is) {
    std::vector<const SccWord *> words;
    std::unordered_set<std::string_view> seen;
    for (const SccWord &word : line.words) {
        if (is(word) && seen.insert(word.digits).second)
            words.push_back(&word);
    }
    return words;
}

std::string digitsOf(const SccWord &word) {
    return std::string(word.digits);
}

/// A finding on words of a line, at least one, listed between `before` and `behind`.
template <class TextOf>
Finding findingOnWords(const SccLine &line, const std::vector<const SccWord *> &words,
                       const std::string &before, TextOf textOf, const std::string &behind) {
    constexpr std::size_t kMost = 8;
    ShortList list;
    std::vector<std::string> digits;
    for (const SccWord *word : words) {
        list.add(textOf(*word));
        if (digits.size() < kMost)
            digits.push_back(digitsOf(*word));
    }
    const auto first = static_cast<std::size_t>(words.front() - line.words.data());
    return findingOn(line, before + list.text() + behind, first, std::move(digits));
}

Finding malformedWords(const SccLine &line) {
    const auto words = wordsThat(line, [](const SccWord &word) { return !word.isCode; });
    return findingOnWords(
        line, words, "", [](const SccWord &word) { return startInQuotes(word.digits); },
        std::string(words.size() == 1 ? " is not a word" : " are not words") +
            " of four hex digits: correct the line.");
}

Finding wrongParity(const SccLine &line) {
    return findingOnWords(
        line, wordsThat(line, [](const SccWord &word) { return word.isCode && !word.parity; }),
        "Wrong parity in ",
        [](const SccWord &word) {
            return digitsOf(word) + " (should be " + wordOf(word.meaning->withParity) + ")";
        },
        ": correct the line or request a new export.");
}

bool isUnknown(const SccWord &word) {
    return word.isCode && word.meaning->kind == CodeKind::none;
}

Finding unknownCodes(const SccLine &line) {
    const auto words = wordsThat(line, isUnknown);
    return findingOnWords(line, words, "", digitsOf,
                          words.size() == 1 ? " is not a CEA-608 code: correct or delete it."
                                            : " are not CEA-608 codes: correct or delete them.");
}

Finding otherField(const SccLine &line) {
    const auto words =
        wordsThat(line, [](const SccWord &word) { return word.meaning->secondField; });
    return findingOnWords(
        line, words, "", digitsOf,
        std::string(words.size() == 1 ? " belongs" : " belong") +
            " to field 2, but an SCC file is for field 1: request a file of field 1 only.");
}

/// A base row of roll-up that leaves no room for the rows above it; 0 for any other word.
int highBaseRow(const SccWord &word) {
    if (word.meaning->kind != CodeKind::preamble)
        return 0;
    const int row = rowOfPreamble(word.meaning->code);
    return row < rowsOf(word.mode) ? row : 0;
}

Finding highBase(const SccLine &line) {
    const auto words = wordsThat(line, [](const SccWord &word) { return highBaseRow(word) != 0; });
    const std::string row = std::to_string(highBaseRow(*words.front()));
    const std::string rows = std::to_string(rowsOf(words.front()->mode));
    return findingOnWords(line, {words.front()}, "", digitsOf,
                          " sets base row " + row + " for a roll-up of " + rows +
                              " rows, which do not fit: use row " + rows + " or one below it.");
}

bool isTextModeCode(const SccWord &word) {
    return word.meaning->code == code::kTr || word.meaning->code == code::kRtd;
}

/// Whether text mode begins and ends again without any text.
bool isLoneTextMode(const SccLine &line) {
    for (std::size_t i = 0; i < line.words.size(); ++i) {
        const SccWord &word = line.words[i];
        if (isText(word.service) && (!isTextModeCode(word) || i + 1 == line.words.size()))
            return false;
    }
    return true;
}

void lookAtServices(const SccLine &line, Findings &findings) {
    std::array<std::size_t, kServiceNames.size()> count{};
    std::array<std::size_t, kServiceNames.size()> first{};
    for (std::size_t i = 0; i < line.words.size(); ++i) {
        const auto service = static_cast<std::size_t>(line.words[i].service);
        if (count[service]++ == 0)
            first[service] = i;
    }
    for (std::size_t i = 1; i < count.size(); ++i) {
        const auto service = static_cast<Service>(i);
        if (count[i] == 0 || service == Service::cc1 || service == Service::cc3)
            continue;
        const bool isChannel = channelOf(service) % 2 == 1;
        const bool isLone = !isChannel && isLoneTextMode(line);
        const auto make = [&] {
            const std::string digits = digitsOf(line.words[first[i]]);
            const std::string belong = counted(static_cast<long>(count[i]), "word") +
                                       (count[i] == 1 ? " belongs to " : " belong to ") +
                                       std::string(nameOf(service));
            return findingOn(
                line,
                isChannel ? belong + ", a second channel, whose codes stay as digits: request a "
                                     "file of the first channel only."
                : isLone
                    ? digits + " starts text mode, which ends before any text is sent: delete it."
                    : belong + ", a text mode service: request a file of captions only.",
                first[i], {digits});
        };
        findings.add(line.number, isChannel ? FindingKind::channel : FindingKind::textMode,
                     static_cast<std::uint32_t>(2 * i + (isLone ? 1 : 0)), make);
    }
}

} // namespace

CodeCheck::Marks CodeCheck::marksOf(const SccLine &line) {
    Marks marks;
    std::size_t wrong = 0;
    std::size_t malformed = 0;
    bool isSingle = false; // the word before, unless this one repeats it
    for (const SccWord &word : line.words) {
        malformed += word.isCode ? 0 : 1;
        wrong += word.isCode && !word.parity ? 1 : 0;
        marks.single |= isSingle && !word.repeats;
        isSingle = false;
        const CodeMeaning &meaning = *word.meaning;
        marks.otherService |= word.service > Service::cc1;
        if (meaning.kind == CodeKind::text)
            continue;
        marks.unknown |= isUnknown(word);
        marks.secondField |= meaning.secondField;
        marks.highBase |= highBaseRow(word) != 0;
        if (isSentTwice(meaning)) {
            singles_.count(word.repeats);
            isSingle = !word.repeats;
        }
    }
    marks.single |= isSingle;
    marks.malformed = malformed != 0;
    marks.wrongParity = wrong != 0;
    words_ += line.words.size() - malformed;
    wrongWords_ += wrong;
    return marks;
}

void CodeCheck::look(const SccLine &line, Findings &findings) {
    const Marks marks = marksOf(line);
    const auto add = [&](FindingKind kind, std::uint32_t cause, auto make) {
        findings.add(line.number, kind, cause, [&] { return make(line); });
    };
    if (marks.malformed)
        add(FindingKind::word, 0, malformedWords);
    if (marks.wrongParity)
        add(FindingKind::parity, 0, wrongParity);
    if (marks.unknown) {
        const auto first = std::find_if(line.words.begin(), line.words.end(), isUnknown);
        add(FindingKind::code, first->code, unknownCodes);
    }
    if (marks.otherService)
        lookAtServices(line, findings);
    if (marks.secondField)
        add(FindingKind::field, 0, otherField);
    if (marks.highBase)
        add(FindingKind::rows, 1, highBase);
    singles_.look(line, marks.single, findings);
}

void CodeCheck::finish(Findings &findings) {
    singles_.finish(findings);
    if (2 * wrongWords_ > words_) {
        findings.tellOnce(FindingKind::parity,
                          "Parity is wrong here and in most of the file, as if it was written "
                          "without parity bits: request a new export.");
    }
}

} // namespace norvane

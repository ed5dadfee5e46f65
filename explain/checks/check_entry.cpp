#include "decode/rows_of_code.h"
#include "explain/checks/check.h"
#include "explain/walk/said_text.h"

#include "framework/text/text.h"

#include <algorithm>
#include <unordered_set>

namespace norvane {

namespace {

/// Whether a row ahead of the deletion of the blanks puts an odd number of characters in the place
/// of a word, its blank aside.
constexpr bool isOddRow(std::size_t row) {
    const std::string_view with = replacementChain[row - 1].with;
    return std::count_if(with.begin(), with.end(),
                         [](char c) {
                             return c != ' ' && (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
                         }) %
               2 ==
           1;
}

/// Characters whose blank the chain deletes, so that the pairs behind one of them are cut in the
/// wrong places, until another comes.
bool isNarrow(const SccWord &word) {
    const std::size_t row = kRowsOfCode.first[word.code];
    return word.isCode && row != 0 && row < kBlanksRow && isOddRow(row);
}

std::string partsOf(const SccLine &line, const Crossing &crossing) {
    std::string text;
    for (std::size_t i = 0; i < crossing.parts.size(); ++i) {
        const auto &[word, digits] = crossing.parts[i];
        text += i == 0 ? "" : i + 1 == crossing.parts.size() ? " and " : ", ";
        text.append(digits).append(" of ").append(line.words[word].digits);
    }
    return text;
}

std::string nameOfKey(const std::string &key) {
    const int code = codeOfWord(key);
    return code < 0 ? "a filler" : std::string(meaningOf(static_cast<std::uint16_t>(code)).name);
}

std::string tellCrossing(const SccLine &line, const Crossing &crossing) {
    return partsOf(line, crossing) + " read together as " + crossing.key + " (" +
           nameOfKey(crossing.key) + ")";
}

bool isSound(const SccLine &line, const Crossing &crossing) {
    return std::all_of(crossing.parts.begin(), crossing.parts.end(), [&line](const auto &part) {
        return line.words[part.word].isCode && line.words[part.word].parity;
    });
}

/// Tells crossings, those in the same word of the language as one.
void tellCrossings(const SccLine &line, const LineWalk &walk, Findings &findings) {
    const std::vector<Crossing> &crossings = walk.crossings();
    const SaidLine saidLine(line);
    for (std::size_t i = 0, next = 0; i < crossings.size(); i = next) {
        const SaidText said = saidLine.around(crossings[i].first, crossings[i].last);
        std::string text;
        if (!said.text.empty())
            text = startInQuotes(said.text) + " becomes " +
                   startInQuotes(walk.entryOf(said.start, said.end)) + ": ";
        bool sound = true;
        for (next = i; next < crossings.size() && (next == i || crossings[next].first < said.end);
             ++next) {
            text += (next == i ? "" : ", and ") + tellCrossing(line, crossings[next]);
            sound = sound && isSound(line, crossings[next]);
        }
        findings.add(line.number, FindingKind::altered,
                     text + (sound ? ". The file is sound: correct the transcript."
                                   : ". Correct these words of the file first."));
    }
}

} // namespace

void checkEntry(const SccLine &line, const LineWalk &walk, Findings &findings) {
    tellCrossings(line, walk, findings);
    bool inStep = true;
    ShortList kept;
    std::unordered_set<std::string_view> told;
    for (std::size_t i = 0; i < line.words.size(); ++i) {
        const SccWord &word = line.words[i];
        if (isNarrow(word)) {
            inStep = !inStep;
            if (!inStep && i + 1 < line.words.size() && !isNarrow(line.words[i + 1])) {
                findings.add(line.number, FindingKind::altered,
                             std::string(word.digits).append(", ").append(word.meaning->name) +
                                 ", has no blank in the transcript, and what follows is read out "
                                 "of step. The file is sound: correct the transcript.");
            }
            continue;
        }
        inStep = inStep && word.isCode;
        const WordFate fate = walk.fateOf(i, 1);
        const bool isOfFirst = word.service == Service::cc1 || word.service == Service::t1;
        if (inStep && word.parity && isOfFirst && word.meaning->kind != CodeKind::none &&
            !fate.kept.empty() && fate.swallowed.empty() && told.insert(word.digits).second)
            kept.add(std::string(word.digits).append(" (").append(word.meaning->name) +
                     "), which stays as " + inQuotes(fate.text));
    }
    if (!kept.empty()) {
        findings.add(line.number, FindingKind::digits,
                     "The program does not know " + kept.text() +
                         ". The file is sound: correct the transcript.");
    }
}

} // namespace norvane

#include "explain/check.h"
#include "explain/said_text.h"

#include "framework/text/text.h"

#include <algorithm>
#include <array>

namespace norvane {

namespace {

/// Characters whose blank the chain deletes, so that the pairs behind one of them are cut in the
/// wrong places, until another comes.
bool isNarrow(const SccWord &word) {
    constexpr std::array<unsigned, 5> kNarrow = {0x1329, 0x132A, 0x1339, 0x133A, 0x133B};
    return word.parity &&
           std::find(kNarrow.begin(), kNarrow.end(), word.meaning.code) != kNarrow.end();
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
    return code < 0 ? "a filler" : meaningOf(static_cast<unsigned>(code)).name;
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
    std::vector<std::string> kept;
    for (std::size_t i = 0; i < line.words.size(); ++i) {
        const SccWord &word = line.words[i];
        if (isNarrow(word)) {
            inStep = !inStep;
            if (!inStep && i + 1 < line.words.size() && !isNarrow(line.words[i + 1])) {
                findings.add(line.number, FindingKind::altered,
                             std::string(word.digits) + ", " + word.meaning.name +
                                 ", has no blank in the transcript, and what follows is read out "
                                 "of step. The file is sound: correct the transcript.");
            }
            continue;
        }
        inStep = inStep && word.isCode;
        const WordFate fate = walk.fateOf(i, 1);
        const bool isOfFirst = word.service == "CC1" || word.service == "T1";
        if (inStep && word.parity && isOfFirst && word.meaning.kind != CodeKind::none &&
            !fate.kept.empty() && fate.swallowed.empty())
            addOnce(kept, std::string(word.digits) + " (" + word.meaning.name +
                              "), which stays as " + inQuotes(fate.text));
    }
    if (!kept.empty()) {
        findings.add(line.number, FindingKind::digits,
                     "The program does not know " + shortList(kept) +
                         ". The file is sound: correct the transcript.");
    }
}

} // namespace norvane

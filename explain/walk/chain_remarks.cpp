#include "decode/rows_of_code.h"
#include "explain/standard/short_list.h"
#include "explain/walk/remark_list.h"

#include <algorithm>

// What the transcript has for a word follows from the rows alone. Where that is not what the word
// says, three causes lie in the rows: a key that was never sent was found across words (a
// crossing); a character was inserted without its blank, so that all pairs after it are cut in the
// wrong places; a code has no row and stays as digits.

namespace norvane {

namespace {

// Beside the rows of the chain, which are causes themselves.
constexpr std::uint32_t kNarrowCause = 0x10000;

/// Whether a row before the deletion of the blanks replaces a word by an odd number of characters,
/// its blank aside.
constexpr bool isOddRow(std::size_t row) {
    const std::string_view with = replacementChain[row - 1].with;
    return std::count_if(with.begin(), with.end(),
                         [](char c) {
                             return c != ' ' && (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
                         }) %
               2 ==
           1;
}

std::string nameOfKey(const std::string &key) {
    const int code = codeOfWord(key);
    return code < 0 ? "a filler" : std::string(meaningOf(static_cast<std::uint16_t>(code)).name);
}

/// "9 of d049 and 454 of 4543 are read as 9454 (PAC row 14 indent 8)".
std::string textOf(const SccLine &line, const Crossing &crossing) {
    std::string text;
    std::string key;
    for (std::size_t i = 0; i < crossing.count;) {
        const std::size_t index = line.wordAt(crossing.places.at(i));
        const SccWord &word = line.words[index];
        std::string digits;
        for (; i < crossing.count && line.wordAt(crossing.places.at(i)) == index; ++i)
            digits += line.data.hexText[crossing.places.at(i)];
        text += text.empty() ? "" : i < crossing.count ? ", " : " and ";
        text.append(digits).append(" of ").append(word.digits);
        key += digits;
    }
    return text + " are read as " + key + " (" + nameOfKey(key) + ")";
}

bool isOfCorrectWords(const SccLine &line, const Crossing &crossing) {
    return std::all_of(crossing.places.begin(), crossing.places.begin() + crossing.count,
                       [&line](TracedText::Place place) {
                           const SccWord &word = line.words[line.wordAt(place)];
                           return word.isCode && word.parity;
                       });
}

void remarkOnCrossingsOf(const SaidText &said, std::vector<Crossing> crossings, RemarkList &list) {
    const SccLine &line = list.line();
    constexpr std::size_t kMost = 4;
    const std::size_t word = line.wordAt(crossings.front().first());
    const std::size_t lastWord = line.wordAt(crossings.back().last());
    std::stable_sort(crossings.begin(), crossings.end(),
                     [](const Crossing &a, const Crossing &b) { return a.row < b.row; });
    std::string text;
    if (!said.text.empty()) {
        const std::string written = list.walk().entryOf(said.start, said.end);
        text = startInQuotes(said.text) + " becomes " + startInQuotes(written) + ": ";
        list.isNew(said.text + '\n' + written); // compared here
    }
    bool isCorrect = true;
    for (std::size_t i = 0; i < crossings.size(); ++i) {
        isCorrect = isCorrect && isOfCorrectWords(line, crossings[i]);
        if (i < kMost)
            text += (i == 0 ? "" : ", and ") + textOf(line, crossings[i]);
    }
    if (crossings.size() > kMost)
        text += " and " + std::to_string(crossings.size() - kMost) + " more";
    list.add(EntryRemark::Kind::altered, crossings.front().row, word, lastWord - word + 1,
             text + (isCorrect ? ". The file is correct: edit the transcript."
                               : ". Correct these words in the file first."));
}

} // namespace

bool isNarrow(const SccWord &word) {
    const std::size_t row = kRowsOfCode.first[word.code];
    return word.isCode && row != 0 && row < kBlanksRow && isOddRow(row);
}

/// Crossings in the same word of the language make one remark.
void remarkOnCrossings(RemarkList &list) {
    std::vector<Crossing> crossings = list.walk().crossings();
    std::stable_sort(crossings.begin(), crossings.end(),
                     [](const Crossing &a, const Crossing &b) { return a.first() < b.first(); });
    for (auto next = crossings.begin(); next != crossings.end();) {
        const auto first = next;
        const SaidText around = list.said().around(first->first(), first->last());
        do
            ++next;
        while (next != crossings.end() && next->first() < around.end);
        remarkOnCrossingsOf(around, {first, next}, list);
    }
}

void remarkOnDigits(RemarkList &list) {
    const SccLine &line = list.line();
    const LineWalk &walk = list.walk();
    bool inStep = true;
    ShortList kept;
    std::unordered_set<std::string_view> seen;
    std::size_t first = line.words.size();
    std::size_t last = 0;
    for (std::size_t i = 0; i < line.words.size(); ++i) {
        const SccWord &word = line.words[i];
        if (isNarrow(word)) {
            inStep = !inStep;
            if (!inStep && i + 1 < line.words.size() && !isNarrow(line.words[i + 1])) {
                list.add(
                    EntryRemark::Kind::altered, kNarrowCause | word.code, i, 1,
                    std::string(word.digits).append(" (").append(word.meaning->name) +
                        ") loses its space in the transcript, and the text after it is misread. "
                        "The file is correct: edit the transcript.");
            }
            continue;
        }
        inStep = inStep && word.isCode;
        const bool isOfFirst = word.service == Service::cc1 || word.service == Service::t1;
        if (!inStep || !word.parity || !isOfFirst || word.meaning->kind == CodeKind::none ||
            (walk.isPlain() && !walk.keepsDigits(i)))
            continue;
        const WordFate fate = walk.fateOf(i, 1);
        if (fate.kept.empty() || !fate.swallowed.empty() || !seen.insert(word.digits).second)
            continue;
        kept.add(std::string(word.digits).append(" (").append(word.meaning->name) + ") stays as " +
                 inQuotes(fate.text));
        first = std::min(first, i);
        last = i;
    }
    if (!kept.empty()) {
        list.add(EntryRemark::Kind::digits, line.words[first].code, first, last - first + 1,
                 "Not decoded: " + kept.text() + ". The file is correct: edit the transcript.");
    }
}

} // namespace norvane

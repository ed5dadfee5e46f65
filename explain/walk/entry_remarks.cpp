#include "explain/walk/entry_remarks.h"

#include "decode/rows_of_code.h"
#include "explain/standard/short_list.h"
#include "explain/walk/said_text.h"

#include <algorithm>
#include <unordered_set>

// What the transcript has for a word follows from the rows alone, and where that is not what the
// word says, the reader should know why. Three causes concern the rows: a key that nobody sent was
// found across words (a crossing); a character was put in without its blank, so that all pairs
// behind it are cut in the wrong places; a code has no row and stays as digits. The others lie
// between what is written and what is seen: a code that is deleted, or replaced by hyphens, where
// a screen has a column; a plain character for old decoders, which a screen replaces.

namespace norvane {

namespace {

using Kind = EntryRemark::Kind;

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

bool isCharacterCode(const SccWord &word) {
    return word.meaning->kind == CodeKind::special || word.meaning->kind == CodeKind::extended;
}

// Causes of one kind, beside the rows of the chain.
constexpr std::uint32_t kNarrowCause = 0x10000;
constexpr std::uint32_t kGlueCause = 0x20000;
constexpr std::uint32_t kDifferenceCause = 0x30000;

/// Runs of blanks as one, and none around.
std::string folded(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (c != ' ' || (!result.empty() && result.back() != ' '))
            result += c;
    }
    if (result.ends_with(' '))
        result.pop_back();
    return result;
}

bool isNothing(const SccWord &word) {
    return word.repeats || word.meaning->kind == CodeKind::filler;
}

std::string lastCharacter(std::string_view text) {
    while (text.size() > characterSize(text))
        text.remove_prefix(characterSize(text));
    return std::string(text);
}

std::string nameOfKey(const std::string &key) {
    const int code = codeOfWord(key);
    return code < 0 ? "a filler" : std::string(meaningOf(static_cast<std::uint16_t>(code)).name);
}

/// Puts the remarks on one line together.
class Remarker {
  public:
    Remarker(const SccLine &line, const LineWalk &walk, bool wantsAdvice,
             std::vector<EntryRemark> &remarks)
        : line_(line), walk_(walk), wantsAdvice_(wantsAdvice), remarks_(remarks) {}

    void remarkOnCrossings();
    void remarkOnDigits();
    void remarkOnWords();
    void remarkOnTheRest();

  private:
    struct Told {
        bool style = false;
        bool block = false;
    };

    void add(Kind kind, std::uint32_t cause, std::size_t word, std::size_t count,
             std::string text) {
        if (said_.insert(text).second)
            remarks_.push_back({kind, cause, word, count, std::move(text)});
    }
    void advise(std::string text) {
        if (said_.insert(text).second && wantsAdvice_)
            remarks_.push_back({.text = std::move(text)});
    }
    const SaidLine &said() {
        if (!saidLine_)
            saidLine_.emplace(line_);
        return *saidLine_;
    }
    std::string saidBy(std::size_t word);
    std::string tell(const Crossing &crossing) const;
    bool isSound(const Crossing &crossing) const;
    void remarkOnCrossingsOf(const SaidText &said, std::vector<Crossing> crossings);
    void remarkOnOther(std::size_t word, Told &told);
    void remarkOnDifference(std::size_t word, const WordFate &fate);
    void remarkOnGluing(std::size_t code);
    std::size_t fallbackOf(std::size_t word) const;
    bool isDoubled(std::size_t word) const;
    std::size_t before(std::size_t word) const;
    std::size_t behind(std::size_t word) const;

    const SccLine &line_;
    const LineWalk &walk_;
    bool wantsAdvice_;
    std::vector<EntryRemark> &remarks_;
    std::unordered_set<std::string> said_; // unwanted advice as well
    std::optional<SaidLine> saidLine_;
};

/// "9 of d049 and 454 of 4543 are read as 9454 (PAC row 14 indent 8)".
std::string Remarker::tell(const Crossing &crossing) const {
    std::string text;
    std::string key;
    for (std::size_t i = 0; i < crossing.count;) {
        const std::size_t index = line_.wordAt(crossing.places.at(i));
        const SccWord &word = line_.words[index];
        std::string digits;
        for (; i < crossing.count && line_.wordAt(crossing.places.at(i)) == index; ++i)
            digits += line_.data.hexText[crossing.places.at(i)];
        text += text.empty() ? "" : i < crossing.count ? ", " : " and ";
        text.append(digits).append(" of ").append(word.digits);
        key += digits;
    }
    return text + " are read as " + key + " (" + nameOfKey(key) + ")";
}

bool Remarker::isSound(const Crossing &crossing) const {
    return std::all_of(crossing.places.begin(), crossing.places.begin() + crossing.count,
                       [this](TracedText::Place place) {
                           const SccWord &word = line_.words[line_.wordAt(place)];
                           return word.isCode && word.parity;
                       });
}

/// Crossings in the same word of the language are told as one.
void Remarker::remarkOnCrossings() {
    std::vector<Crossing> crossings = walk_.crossings();
    std::stable_sort(crossings.begin(), crossings.end(),
                     [](const Crossing &a, const Crossing &b) { return a.first() < b.first(); });
    for (auto next = crossings.begin(); next != crossings.end();) {
        const auto first = next;
        const SaidText around = said().around(first->first(), first->last());
        do
            ++next;
        while (next != crossings.end() && next->first() < around.end);
        remarkOnCrossingsOf(around, {first, next});
    }
}

void Remarker::remarkOnCrossingsOf(const SaidText &said, std::vector<Crossing> crossings) {
    constexpr std::size_t kMost = 4;
    const std::size_t word = line_.wordAt(crossings.front().first());
    const std::size_t lastWord = line_.wordAt(crossings.back().last());
    std::stable_sort(crossings.begin(), crossings.end(),
                     [](const Crossing &a, const Crossing &b) { return a.row < b.row; });
    std::string text;
    if (!said.text.empty()) {
        const std::string written = walk_.entryOf(said.start, said.end);
        text = startInQuotes(said.text) + " becomes " + startInQuotes(written) + ": ";
        said_.insert(said.text + '\n' + written);
    }
    bool sound = true;
    for (std::size_t i = 0; i < crossings.size(); ++i) {
        sound = sound && isSound(crossings[i]);
        if (i < kMost)
            text += (i == 0 ? "" : ", and ") + tell(crossings[i]);
    }
    if (crossings.size() > kMost)
        text += " and " + std::to_string(crossings.size() - kMost) + " more";
    add(Kind::altered, crossings.front().row, word, lastWord - word + 1,
        text + (sound ? ". The file is correct: edit the transcript."
                      : ". Correct these words in the file first."));
}

void Remarker::remarkOnDigits() {
    bool inStep = true;
    ShortList kept;
    std::unordered_set<std::string_view> told;
    std::size_t first = line_.words.size();
    std::size_t last = 0;
    for (std::size_t i = 0; i < line_.words.size(); ++i) {
        const SccWord &word = line_.words[i];
        if (isNarrow(word)) {
            inStep = !inStep;
            if (!inStep && i + 1 < line_.words.size() && !isNarrow(line_.words[i + 1])) {
                add(Kind::altered, kNarrowCause | word.code, i, 1,
                    std::string(word.digits).append(" (").append(word.meaning->name) +
                        ") loses its space in the transcript, and the text after it is misread. "
                        "The file is correct: edit the transcript.");
            }
            continue;
        }
        inStep = inStep && word.isCode;
        const bool isOfFirst = word.service == Service::cc1 || word.service == Service::t1;
        if (!inStep || !word.parity || !isOfFirst || word.meaning->kind == CodeKind::none ||
            (walk_.isPlain() && !walk_.keepsDigits(i)))
            continue;
        const WordFate fate = walk_.fateOf(i, 1);
        if (fate.kept.empty() || !fate.swallowed.empty() || !told.insert(word.digits).second)
            continue;
        kept.add(std::string(word.digits).append(" (").append(word.meaning->name) + ") stays as " +
                 inQuotes(fate.text));
        first = std::min(first, i);
        last = i;
    }
    if (!kept.empty()) {
        add(Kind::digits, line_.words[first].code, first, last - first + 1,
            "Not decoded: " + kept.text() + ". The file is correct: edit the transcript.");
    }
}

std::string Remarker::saidBy(std::size_t word) {
    const std::size_t place = line_.placeOf(line_.words[word]);
    return inQuotes(said().around(place, place + line_.words[word].digits.size()).text);
}

void Remarker::remarkOnWords() {
    Told told;
    bool inStep = true;
    bool isGlue = false;  // a code that parts came behind characters, and nothing stands for it
    std::size_t glue = 0; // that code
    bool isBehindText = false; // the last thing that stands is a character, not a blank
    for (std::size_t i = 0; i < line_.words.size(); ++i) {
        const WordClass is = walk_.classOf(i);
        if (is == WordClass::nothing)
            continue;
        if (is == WordClass::deleted) {
            if (isBehindText && !isGlue) {
                isGlue = true;
                glue = i;
            }
            continue;
        }
        const CodeMeaning &meaning = *line_.words[i].meaning;
        const bool isText = isCharacters(meaning) && is != WordClass::other;
        if (isText && isGlue && !meaning.shown.starts_with(' '))
            remarkOnGluing(glue);
        if (isNarrow(line_.words[i]))
            inStep = !inStep;
        const bool isAtEnd = i + 1 == line_.words.size();
        if (is == WordClass::other && (inStep || isAtEnd))
            remarkOnOther(i, told);
        isGlue = false;
        isBehindText = isCharacters(meaning) && !meaning.shown.ends_with(' ');
    }
    if (told.style) {
        advise(
            "“--” stands for a change of style, which takes up a column: replace it with a space.");
    }
    if (told.block) {
        advise(
            "The program treats “█” as a bar, which it deletes or turns into a space: correct the "
            "transcript.");
    }
}

/// A word that has in the transcript something else than on the screen.
void Remarker::remarkOnOther(std::size_t index, Told &told) {
    const SccWord &word = line_.words[index];
    const CodeMeaning &meaning = *word.meaning;
    const WordFate fate = walk_.fateOf(index, 1);
    if (meaning.kind == CodeKind::text && fate.text == meaning.shown)
        return;
    if (!fate.swallowed.empty() || !fate.kept.empty() || !word.isCode || !word.parity ||
        word.service != Service::cc1)
        return; // reported as digits, as an altered word or by the check
    const bool stands = !fate.text.empty() && !fate.isBlank;
    const bool isStyle = meaning.kind == CodeKind::midRow || meaning.code == code::kFon;
    if (meaning.shown.find("█") != std::string_view::npos) {
        told.block = true;
    } else if (isStyle && stands) {
        told.style = true;
    } else if (isCharacterCode(word) && stands && word.repeats) {
        advise(inQuotes(meaning.shown) + " is sent twice, like a code, and appears twice in the "
                                         "transcript: delete one.");
    } else if (meaning.kind == CodeKind::extended && stands && fallbackOf(index) != index) {
        const std::size_t fallback = fallbackOf(index);
        const std::string plain = inQuotes(lastCharacter(line_.words[fallback].meaning->shown));
        advise(inQuotes(meaning.shown) + " replaces the " + plain +
               " before it, which is for old decoders; the transcript has both: delete " + plain +
               ".");
    } else if (word.repeats || fate.isBlank || (stands && isDoubled(index))) {
        return; // a blank parts as the code does, and of two that are the same one is advised on
    } else if (!isCharacters(meaning) && meaning.code != code::kBs && !stands) {
        remarkOnGluing(index);
    } else {
        remarkOnDifference(index, fate);
    }
}

/// The word with the plain character that an extended one replaces on a screen; the index itself
/// when there is none in the transcript.
std::size_t Remarker::fallbackOf(std::size_t index) const {
    const std::size_t plain = before(index);
    const bool isThere = plain != index && isCharacters(*line_.words[plain].meaning) &&
                         walk_.fateOf(plain, 1).swallowed.empty();
    return isThere ? plain : index;
}

/// Whether a character code comes twice.
bool Remarker::isDoubled(std::size_t index) const {
    return isCharacterCode(line_.words[index]) && index + 1 < line_.words.size() &&
           line_.words[index + 1].repeats;
}

/// The next word to the left, and to the right, that is neither a filler nor a repetition; the
/// first and the last word of the line where there is none.
std::size_t Remarker::before(std::size_t word) const {
    while (word > 0 && isNothing(line_.words[--word])) {
    }
    return word;
}
std::size_t Remarker::behind(std::size_t word) const {
    while (word + 1 < line_.words.size() && isNothing(line_.words[++word])) {
    }
    return word;
}

/// Nothing may differ without a word, so that "Nothing to correct." holds: where all words are
/// those of the first channel and nothing was told, what they say and the entry are compared as a
/// whole.
void Remarker::remarkOnTheRest() {
    const auto isOther = [](const SccWord &word) {
        return !word.parity || word.meaning->kind == CodeKind::none ||
               (word.service != Service::cc1 && word.service != Service::none);
    };
    if (!said_.empty() || std::any_of(line_.words.begin(), line_.words.end(), isOther))
        return;
    const std::string seen = folded(said().text());
    const std::string written = folded(*walk_.entry());
    if (ReplaceAll(seen, " ", "") != ReplaceAll(written, " ", "")) {
        add(Kind::altered, kDifferenceCause, 0, line_.words.size(),
            "The viewer reads " + (seen.empty() ? "nothing" : startInQuotes(seen)) +
                "; the transcript has " + startInQuotes(written) +
                ". The file is correct: edit the transcript.");
    }
}

/// What the viewer reads and what the transcript says, where no row of its own explains it.
void Remarker::remarkOnDifference(std::size_t index, const WordFate &fate) {
    const SccWord &word = line_.words[index];
    const std::string is = std::string(word.digits).append(" (").append(word.meaning->name) + ")";
    // A backspace stands behind what it concerns, of which nothing may be left.
    constexpr int kMostBack = 8;
    const bool hasText = isCharacters(*word.meaning);
    const SccWord &last = line_.words[hasText ? index : behind(index)];
    std::size_t first = hasText ? index : before(index);
    const auto find = [&] {
        return said().around(line_.placeOf(line_.words[first]),
                             line_.placeOf(last) + last.digits.size() - 1);
    };
    SaidText around = find();
    for (int back = 0; around.text.empty() && first > 0 && back < kMostBack; ++back) {
        first = before(first);
        around = find();
    }
    const std::size_t end = word.meaning->code == code::kBs ? line_.placeOf(word) : around.start;
    const std::string written =
        around.text.empty() ? "" : walk_.entryOf(around.start, std::max(around.end, end));
    std::string text;
    if (!hasText && !fate.text.empty() && !fate.isBlank) {
        text = inQuotes(fate.text) + " comes from " + is + ", which shows nothing: delete it.";
    } else if (folded(written) != folded(around.text) || word.meaning->code == code::kBs) {
        if (around.text.empty() || !said_.insert(around.text + '\n' + written).second)
            return; // nothing that is read, or told with another of its words
        text = "The viewer reads " + startInQuotes(around.text) + "; the transcript has " +
               startInQuotes(written) + ", where " + is +
               (fate.text.empty() ? " is deleted" : " becomes " + inQuotes(fate.text)) +
               ". The file is correct: edit the transcript.";
    }
    if (!text.empty())
        add(Kind::altered, kDifferenceCause | word.code, index, 1, text);
}

/// A code that parts words stands for nothing when it is deleted, so that they stand together.
void Remarker::remarkOnGluing(std::size_t code) {
    const std::size_t ahead = before(code);
    const std::size_t next = behind(code);
    const CodeMeaning &left = *line_.words[ahead].meaning;
    const CodeMeaning &right = *line_.words[next].meaning;
    if (isCharacters(left) && !left.shown.ends_with(' ') && isCharacters(right) &&
        !right.shown.starts_with(' ')) {
        add(Kind::altered, kGlueCause | line_.words[code].code, ahead, next - ahead + 1,
            std::string(line_.words[code].digits) + " separates " + saidBy(ahead) + " and " +
                saidBy(next) +
                " on the screen but leaves nothing in the transcript: insert a space.");
    }
}

} // namespace

void remarkOn(const SccLine &line, const LineWalk &walk, bool wantsAdvice,
              std::vector<EntryRemark> &remarks) {
    Remarker remarker(line, walk, wantsAdvice, remarks);
    remarker.remarkOnCrossings();
    remarker.remarkOnDigits();
    if (!walk.entry())
        return;
    remarker.remarkOnWords();
    remarker.remarkOnTheRest();
}

} // namespace norvane

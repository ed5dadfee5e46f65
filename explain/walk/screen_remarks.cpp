#include "explain/walk/remark_list.h"

#include <algorithm>

// Where the screen and the transcript differ though the rows did nothing wrong: a code that takes a
// column on the screen is deleted, or replaced by hyphens; a plain character for old decoders
// stays, which the screen replaces.

namespace norvane {

namespace {

constexpr std::uint32_t kGlueCause = 0x20000;
constexpr std::uint32_t kDifferenceCause = 0x30000;

bool isCharacterCode(const SccWord &word) {
    return word.meaning->kind == CodeKind::special || word.meaning->kind == CodeKind::extended;
}

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

class ScreenRemarks {
  public:
    explicit ScreenRemarks(RemarkList &list)
        : list_(list), line_(list.line()), walk_(list.walk()) {}

    void onWords();
    void onTheRest();

  private:
    struct Seen {
        bool style = false;
        bool block = false;
    };

    std::string saidBy(std::size_t word);
    void onOther(std::size_t word, Seen &seen);
    void onDifference(std::size_t word, const WordFate &fate);
    void onGluing(std::size_t code);
    std::size_t fallbackOf(std::size_t word) const;
    bool isDoubled(std::size_t word) const;
    std::size_t before(std::size_t word) const;
    std::size_t after(std::size_t word) const;

    RemarkList &list_;
    const SccLine &line_;
    const LineWalk &walk_;
};

std::string ScreenRemarks::saidBy(std::size_t word) {
    const std::size_t place = line_.placeOf(line_.words[word]);
    return inQuotes(list_.said().around(place, place + line_.words[word].digits.size()).text);
}

void ScreenRemarks::onWords() {
    Seen seen;
    bool inStep = true;
    bool isGlue = false;      // a separating code after characters was deleted
    std::size_t glue = 0;     // that code
    bool isAfterText = false; // the last thing left is a character, not a blank
    for (std::size_t i = 0; i < line_.words.size(); ++i) {
        const WordClass is = walk_.classOf(i);
        if (is == WordClass::nothing)
            continue;
        if (is == WordClass::deleted) {
            if (isAfterText && !isGlue) {
                isGlue = true;
                glue = i;
            }
            continue;
        }
        const CodeMeaning &meaning = *line_.words[i].meaning;
        const bool isText = isCharacters(meaning) && is != WordClass::other;
        if (isText && isGlue && !meaning.shown.starts_with(' '))
            onGluing(glue);
        if (isNarrow(line_.words[i]))
            inStep = !inStep;
        const bool isAtEnd = i + 1 == line_.words.size();
        if (is == WordClass::other && (inStep || isAtEnd))
            onOther(i, seen);
        isGlue = false;
        isAfterText = isCharacters(meaning) && !meaning.shown.ends_with(' ');
    }
    if (seen.style) {
        list_.advise(
            "“--” stands for a change of style, which takes up a column: replace it with a space.");
    }
    if (seen.block) {
        list_.advise(
            "The program treats “█” as a bar, which it deletes or turns into a space: correct the "
            "transcript.");
    }
}

/// A word for which the transcript has something else than the screen.
void ScreenRemarks::onOther(std::size_t index, Seen &seen) {
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
        seen.block = true;
    } else if (isStyle && stands) {
        seen.style = true;
    } else if (isCharacterCode(word) && stands && word.repeats) {
        list_.advise(inQuotes(meaning.shown) +
                     " is sent twice, like a code, and appears twice in the "
                     "transcript: delete one.");
    } else if (meaning.kind == CodeKind::extended && stands && fallbackOf(index) != index) {
        const std::size_t fallback = fallbackOf(index);
        const std::string plain = inQuotes(lastCharacter(line_.words[fallback].meaning->shown));
        list_.advise(inQuotes(meaning.shown) + " replaces the " + plain +
                     " before it, which is for old decoders; the transcript has both: delete " +
                     plain + ".");
    } else if (word.repeats || fate.isBlank || (stands && isDoubled(index))) {
        return; // a blank separates as the code does, and one of two equal words is enough
    } else if (!isCharacters(meaning) && meaning.code != code::kBs && !stands) {
        onGluing(index);
    } else {
        onDifference(index, fate);
    }
}

/// The word with the plain character that an extended one replaces on a screen; the index itself
/// when there is none in the transcript.
std::size_t ScreenRemarks::fallbackOf(std::size_t index) const {
    const std::size_t plain = before(index);
    const bool isThere = plain != index && isCharacters(*line_.words[plain].meaning) &&
                         walk_.fateOf(plain, 1).swallowed.empty();
    return isThere ? plain : index;
}

/// Whether a character code comes twice.
bool ScreenRemarks::isDoubled(std::size_t index) const {
    return isCharacterCode(line_.words[index]) && index + 1 < line_.words.size() &&
           line_.words[index + 1].repeats;
}

/// The next word to the left, and to the right, that is neither a filler nor a repetition; without
/// one, the first and the last word of the line.
std::size_t ScreenRemarks::before(std::size_t word) const {
    while (word > 0 && isNothing(line_.words[--word])) {
    }
    return word;
}
std::size_t ScreenRemarks::after(std::size_t word) const {
    while (word + 1 < line_.words.size() && isNothing(line_.words[++word])) {
    }
    return word;
}

/// No difference goes without a remark, so that "Nothing to correct." is true: where all words
/// belong to the first channel and there was no remark, what they say is compared with the entry.
void ScreenRemarks::onTheRest() {
    const auto isOther = [](const SccWord &word) {
        return !word.parity || word.meaning->kind == CodeKind::none ||
               (word.service != Service::cc1 && word.service != Service::none);
    };
    if (!list_.empty() || std::any_of(line_.words.begin(), line_.words.end(), isOther))
        return;
    const std::string seen = folded(list_.said().text());
    const std::string written = folded(*walk_.entry());
    if (ReplaceAll(seen, " ", "") != ReplaceAll(written, " ", "")) {
        list_.add(EntryRemark::Kind::altered, kDifferenceCause, 0, line_.words.size(),
                  "The viewer reads " + (seen.empty() ? "nothing" : startInQuotes(seen)) +
                      "; the transcript has " + startInQuotes(written) +
                      ". The file is correct: edit the transcript.");
    }
}

/// What the viewer reads and what the transcript has, where no cause of its own explains it.
void ScreenRemarks::onDifference(std::size_t index, const WordFate &fate) {
    const SccWord &word = line_.words[index];
    const std::string is = std::string(word.digits).append(" (").append(word.meaning->name) + ")";
    // A backspace follows what it erases, of which nothing may be left.
    constexpr int kMostBack = 8;
    const bool hasText = isCharacters(*word.meaning);
    const SccWord &last = line_.words[hasText ? index : after(index)];
    std::size_t first = hasText ? index : before(index);
    const auto find = [&] {
        return list_.said().around(line_.placeOf(line_.words[first]),
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
        if (around.text.empty() || !list_.isNew(around.text + '\n' + written))
            return; // nothing to read, or compared for another of its words
        text = "The viewer reads " + startInQuotes(around.text) + "; the transcript has " +
               startInQuotes(written) + ", where " + is +
               (fate.text.empty() ? " is deleted" : " becomes " + inQuotes(fate.text)) +
               ". The file is correct: edit the transcript.";
    }
    if (!text.empty())
        list_.add(EntryRemark::Kind::altered, kDifferenceCause | word.code, index, 1, text);
}

/// Where a separating code is deleted, the words around it run together.
void ScreenRemarks::onGluing(std::size_t code) {
    const std::size_t ahead = before(code);
    const std::size_t next = after(code);
    const CodeMeaning &left = *line_.words[ahead].meaning;
    const CodeMeaning &right = *line_.words[next].meaning;
    if (isCharacters(left) && !left.shown.ends_with(' ') && isCharacters(right) &&
        !right.shown.starts_with(' ')) {
        list_.add(EntryRemark::Kind::altered, kGlueCause | line_.words[code].code, ahead,
                  next - ahead + 1,
                  std::string(line_.words[code].digits) + " separates " + saidBy(ahead) + " and " +
                      saidBy(next) +
                      " on the screen but leaves nothing in the transcript: insert a space.");
    }
}

} // namespace

void remarkOnScreen(RemarkList &list) {
    ScreenRemarks remarks(list);
    remarks.onWords();
    remarks.onTheRest();
}

} // namespace norvane

#include "explain/reports/advice.h"

#include "explain/walk/said_text.h"
#include "framework/text/text.h"

namespace norvane {

namespace {

bool isCharacter(const SccWord &word) {
    return word.meaning->kind == CodeKind::special || word.meaning->kind == CodeKind::extended;
}

std::string lastCharacter(std::string_view text) {
    while (text.size() > characterSize(text))
        text.remove_prefix(characterSize(text));
    return std::string(text);
}

std::string saidBy(const SccLine &line, const SccWord &word) {
    return inQuotes(
        SaidLine(line).around(line.placeOf(word), line.placeOf(word) + word.digits.size()).text);
}

/// Whether a code parts on the screen what stands before it and behind it.
bool parts(const CodeMeaning &meaning) {
    return meaning.kind == CodeKind::midRow || meaning.kind == CodeKind::tabOffset ||
           meaning.code == code::kCr;
}

/// A code that parts words stands for nothing when it is deleted, so that they stand together.
void adviseOnGluing(const SccLine &line, std::size_t code, std::vector<std::string> &advice) {
    const auto isNothing = [&line](std::size_t word) {
        return line.words[word].repeats || line.words[word].meaning->kind == CodeKind::filler;
    };
    std::size_t ahead = code;
    std::size_t behind = code + 1;
    while (ahead > 0 && (ahead == code || isNothing(ahead)))
        --ahead;
    while (behind < line.words.size() && isNothing(behind))
        ++behind;
    if (behind >= line.words.size())
        return;
    const SccWord &before = line.words[ahead];
    const SccWord &after = line.words[behind];
    if (isCharacters(*before.meaning) && !before.meaning->shown.ends_with(' ') &&
        isCharacters(*after.meaning) && !after.meaning->shown.starts_with(' ')) {
        advice.push_back(
            std::string(line.words[code].digits) + " parts " + saidBy(line, before) + " and " +
            saidBy(line, after) +
            " on the screen, but the transcript has nothing for it: put a blank between them.");
    }
}

} // namespace

void adviseOnEntry(const SccLine &line, const LineWalk &walk, std::vector<std::string> &advice) {
    bool hasStyle = false;
    bool hasBlock = false;
    for (std::size_t i = 0; i < line.words.size(); ++i) {
        const SccWord &word = line.words[i];
        const WordFate fate = walk.fateOf(i, 1);
        const bool stands =
            !fate.text.empty() && !fate.isBlank && fate.swallowed.empty() && fate.kept.empty();
        if (isCharacter(word) && stands && word.repeats) {
            advice.push_back(inQuotes(word.meaning->shown) +
                             " is sent twice, as codes are, and stands twice in the transcript: "
                             "take one out.");
        } else if (word.meaning->kind == CodeKind::extended && stands && i > 0 &&
                   line.words[i - 1].meaning->kind == CodeKind::text &&
                   walk.fateOf(i - 1, 1).swallowed.empty()) {
            const std::string plain = lastCharacter(line.words[i - 1].meaning->shown);
            std::string text = inQuotes(word.meaning->shown) + " takes the place of the “";
            text.append(plain).append("” before it, which is for old decoders; the transcript has "
                                      "both: take “");
            advice.push_back(text.append(plain).append("” out."));
        } else if (parts(*word.meaning) && !word.repeats && !stands) {
            adviseOnGluing(line, i, advice);
        }
        hasStyle |=
            stands && fate.text.find("--") != std::string::npos &&
            (word.meaning->kind == CodeKind::midRow || word.meaning->kind == CodeKind::control);
        hasBlock |= word.meaning->shown.find("█") != std::string::npos;
    }
    if (hasStyle)
        advice.emplace_back("“--” stands for a change of style, which takes a column: put a blank "
                            "in its place.");
    if (hasBlock)
        advice.emplace_back("“█” is a bar to the program, which takes bars out or makes them "
                            "blanks: correct the transcript.");
}

} // namespace norvane

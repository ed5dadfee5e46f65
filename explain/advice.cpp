#include "explain/advice.h"

#include "explain/said_text.h"
#include "framework/text/text.h"

namespace norvane {

namespace {

bool isCharacter(const SccWord &word) {
    return word.meaning.kind == CodeKind::special || word.meaning.kind == CodeKind::extended;
}

std::string lastCharacter(std::string_view text) {
    while (text.size() > characterSize(text))
        text.remove_prefix(characterSize(text));
    return std::string(text);
}

std::string saidBy(const SccLine &line, const SccWord &word) {
    return inQuotes(SaidLine(line).around(word.at, word.at + word.digits.size()).text);
}

/// A code that takes a column on the screen parts words; when it is deleted, they stand together.
void adviseOnGluing(const SccLine &line, std::size_t code, std::vector<std::string> &advice) {
    std::size_t behind = code + 1;
    while (behind < line.words.size() && line.words[behind].repeats)
        ++behind;
    if (code == 0 || behind >= line.words.size())
        return;
    const SccWord &before = line.words[code - 1];
    const SccWord &after = line.words[behind];
    if (isCharacters(before.meaning) && !before.meaning.shown.ends_with(' ') &&
        isCharacters(after.meaning) && !after.meaning.shown.starts_with(' ')) {
        advice.push_back(
            std::string(line.words[code].digits) + " takes a column, which parts " +
            saidBy(line, before) + " and " + saidBy(line, after) +
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
        const bool stands = !fate.text.empty() && !fate.isBlank && fate.swallowed.empty();
        if (isCharacter(word) && stands && word.repeats) {
            advice.push_back("“" + word.meaning.shown +
                             "” is sent twice, as codes are, and stands twice in the transcript: "
                             "take one out.");
        } else if (word.meaning.kind == CodeKind::extended && stands && i > 0 &&
                   line.words[i - 1].meaning.kind == CodeKind::text) {
            const std::string plain = lastCharacter(line.words[i - 1].meaning.shown);
            std::string text = "“" + word.meaning.shown + "” takes the place of the “";
            text.append(plain).append("” before it, which is for old decoders; the transcript has "
                                      "both: take “");
            advice.push_back(text.append(plain).append("” out."));
        } else if (word.meaning.kind == CodeKind::midRow && !word.repeats && !stands) {
            adviseOnGluing(line, i, advice);
        }
        hasStyle |=
            stands && fate.text.find("--") != std::string::npos &&
            (word.meaning.kind == CodeKind::midRow || word.meaning.kind == CodeKind::control);
        hasBlock |= word.meaning.shown.find("█") != std::string::npos;
    }
    if (hasStyle)
        advice.emplace_back("“--” stands for a change of style, which takes a column: put a blank "
                            "in its place.");
    if (hasBlock)
        advice.emplace_back("“█” is a bar to the program, which takes bars out or makes them "
                            "blanks: correct the transcript.");
}

} // namespace norvane

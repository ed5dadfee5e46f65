#include "explain/walk/plain_walk.h"

#include "decode/accent_pairs.h"
#include "decode/chain_table.h"
#include "decode/letters.h"
#include "framework/text/text.h"

namespace norvane::plain {

namespace {

void emptyIfBlank(TracedText &entry) {
    if (entry.text() == " ")
        entry.replace({{0, 1, ""}});
}

} // namespace

void replaceCodeWords(TracedText &text) {
    for (std::size_t row = kFirstWalkedRow; row <= kLastWalkedRow; ++row)
        text.replaceAll(replacementChain[row - 1].key, replacementChain[row - 1].with, row);
}

bool readLetters(TracedText &text) {
    if (text.text().empty())
        text.replace({{0, 0, "2020"}});
    const TextArray characters = Split(text.text(), "");
    if (characters.size() == 1)
        return false;
    std::vector<std::string> letters; // behind each pair that becomes another text
    std::vector<TracedText::Piece> pieces;
    std::size_t start = 0;
    letters.reserve(characters.size());
    for (std::size_t i = 0; i + 1 < characters.size(); i += 2) {
        const std::string pair = std::string(characters[i]).append(characters[i + 1]);
        letters.push_back(convertSCC2Letters(pair));
        if (letters.back() != pair)
            pieces.push_back({start, pair.size(), letters.back()});
        start += pair.size();
    }
    if (start < text.text().size()) // an odd character at the end
        pieces.push_back({start, text.text().size() - start, ""});
    text.replace(pieces);
    const TableRow &marks = replacementChain[kMarksRow - 1];
    text.replaceAll(marks.key, marks.with, kMarksRow);
    return true;
}

void cleanEntry(TracedText &entry) {
    const auto holdsOther = [&entry](std::string_view than) {
        return entry.text().find_first_not_of(than) != std::string_view::npos;
    };
    if (holdsOther("|"))
        entry.replaceFirst("|", "");
    emptyIfBlank(entry);
    if (holdsOther(" *"))
        entry.replaceFirst("[^ *]", "");
    emptyIfBlank(entry);
    if (holdsOther(" *"))
        entry.replaceFirst("|", "");
    emptyIfBlank(entry);
}

void cleanTranscript(TracedText &text) {
    text.replaceAll("]\\t ", "]\\t");
    for (const TableRow &pair : kAccentPairs)
        text.replaceAllB(pair.key, pair.with);
    text.replaceAll("|", " ");
    for (int times = 0; times < 3; ++times)
        text.replaceAll("  ", " ");
}

} // namespace norvane::plain

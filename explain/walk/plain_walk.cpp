#include "explain/walk/plain_walk.h"

#include "decode/accent_pairs.h"
#include "decode/chain_table.h"
#include "decode/letters.h"
#include "framework/text/reg_ex.h"
#include "framework/text/text.h"

namespace norvane::plain {

namespace {

void pass(TracedText &entry, const RegEx &captionRegEx, std::string_view find) {
    if (captionRegEx.Search(entry.text()))
        entry.replaceFirst(find, "");
    if (entry.text() == " ")
        TracedText::Edit(entry).replace(0, 1, "");
}

} // namespace

void replaceCodeWords(TracedText &text) {
    for (std::size_t row = kFirstWalkedRow; row <= kLastWalkedRow; ++row)
        text.replaceAll(replacementChain[row - 1].key, replacementChain[row - 1].with);
}

bool readLetters(TracedText &text) {
    if (text.text().empty())
        text.fill("2020");
    const TextArray charArray = Split(text.text(), "");
    if (charArray.size() == 1)
        return false;
    std::vector<std::string> pairArray;
    for (std::size_t i = 0; i + 1 < charArray.size(); i += 2)
        pairArray.push_back(std::string(charArray[i]).append(charArray[i + 1]));
    {
        TracedText::Edit edit(text);
        std::size_t start = 0;
        for (const std::string &pair : pairArray) {
            if (const std::string letter = convertSCC2Letters(pair); letter != pair)
                edit.replace(start, pair.size(), letter);
            start += pair.size();
        }
        if (start < text.text().size()) // an odd character at the end
            edit.replace(start, text.text().size() - start, "");
    }
    const TableRow &marks = replacementChain[kMarksRow - 1];
    text.replaceAll(marks.key, marks.with);
    return true;
}

void cleanEntry(TracedText &entry) {
    RegEx captionRegEx{"[^|]"};
    pass(entry, captionRegEx, "|");
    captionRegEx.SearchPattern = "[^ *]";
    pass(entry, captionRegEx, captionRegEx.SearchPattern);
    pass(entry, captionRegEx, "|");
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

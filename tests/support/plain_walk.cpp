#include "tests/support/plain_walk.h"

#include "decode/accent_pairs.h"
#include "decode/chain_table.h"
#include "decode/letters.h"
#include "framework/text.h"

namespace norvane::plain {

std::string replaceCodeWords(std::string_view hexText) {
    std::string text(hexText);
    for (std::size_t row = kFirstWalkedRow; row <= kLastWalkedRow; ++row)
        text = ReplaceAll(text, kReplacementChain[row - 1].key, kReplacementChain[row - 1].with);
    return text;
}

std::string caption(std::string_view hexText) {
    std::string text = replaceCodeWords(hexText);
    if (text.empty())
        text = "2020";
    const TextArray charArray = Split(text, "");
    TextArray pairArray;
    for (std::size_t j = 0; j + 1 < charArray.size(); j += 2)
        pairArray.Append(std::string(charArray[j]).append(charArray[j + 1]));
    std::string joined = convertSCC2Letters(pairArray[0]);
    for (std::size_t pair = 1; pair < pairArray.size(); ++pair)
        joined += convertSCC2Letters(pairArray[pair]);
    return ReplaceAll(joined, "****", " ");
}

std::string cleanTranscript(std::string text) {
    text = ReplaceAll(text, "]\\t ", "]\\t");
    for (const TableRow &pair : kAccentPairs)
        text = ReplaceAllB(text, pair.key, pair.with);
    text = ReplaceAll(text, "|", " ");
    text = ReplaceAll(text, "  ", " ");
    text = ReplaceAll(text, "  ", " ");
    return ReplaceAll(text, "  ", " ");
}

} // namespace norvane::plain

#include "decode/caption.h"

#include "decode/chain_table.h"
#include "decode/letter_table.h"
#include "decode/replacement_chain.h"
#include "decode/words.h"
#include "framework/text/text.h"

namespace norvane {

namespace {

constexpr std::string_view kTwoBlanks = "2020"; // as caption bytes

/// Each pair of characters to its letter, or as it is; an odd character at the end is dropped. In
/// place of a charArray, a pairArray and convertSCC2Letters on each pair.
std::string letters(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    while (text.size() >= 2) {
        std::string_view letter = letterOfPair(text);
        std::size_t pair = 2;
        if (letter.empty()) {
            pair = characterSize(text);
            if (pair == text.size())
                break;
            pair += characterSize(text.substr(pair));
            letter = text.substr(0, pair);
        }
        result += letter;
        text.remove_prefix(pair);
    }
    return result;
}

} // namespace

void appendCaption(std::string &captions, std::string_view hexText) {
    if (appendCaptionByWords(captions, hexText))
        return;
    std::string text = replaceCodeWords(hexText);
    if (text.empty())
        text = kTwoBlanks;
    if (characterSize(text) == text.size())
        throw OutOfBoundsException("the codes " + startInQuotes(hexText) +
                                   " leave no pair of characters.");
    const TableRow &marks = replacementChain[kMarksRow - 1];
    captions += ReplaceAll(letters(text), marks.key, marks.with);
}

} // namespace norvane

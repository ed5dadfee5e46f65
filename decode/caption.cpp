#include "decode/caption.h"

#include "decode/chain_table.h"
#include "decode/letters.h"
#include "decode/replacement_chain.h"
#include "decode/words.h"
#include "framework/text/text.h"

namespace norvane {

namespace {

constexpr std::string_view kTwoBlanks = "2020"; // as caption bytes

/// Appends the letter of two characters, or the two as they are.
void appendPair(std::string &letters, std::string_view pair) {
    std::string_view letter;
    if (pair.size() == 2 && hexDigitValue(pair[0]) >= 0 && hexDigitValue(pair[1]) >= 0)
        letter = letterOf(
            static_cast<unsigned char>(hexDigitValue(pair[0]) * 16 + hexDigitValue(pair[1])));
    letters += letter.empty() ? pair : letter;
}

/// Each pair of characters to its letter. An odd character at the end is dropped.
std::string letters(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        std::size_t pair = characterSize(text);
        if (pair == text.size())
            break;
        pair += characterSize(text.substr(pair));
        appendPair(result, text.substr(0, pair));
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
    const TableRow &marks = kReplacementChain[kMarksRow - 1];
    captions += ReplaceAll(letters(text), marks.key, marks.with);
}

} // namespace norvane

#include "decode/replacement_chain.h"

#include "decode/chain_table.h"
#include "decode/rows_of_code.h"
#include "framework/text/text.h"

#include <algorithm>
#include <optional>

namespace norvane {

namespace {

/// Rows 2 to 480 in one go, where the text is words separated by blanks, since a key of these rows
/// can then only be a whole word; nothing for other text.
std::optional<std::string> replaceWholeWords(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        if (text[0] == ' ') {
            text.remove_prefix(1);
            continue;
        }
        const std::string_view word = text.substr(0, std::min<std::size_t>(text.find(' '), 5));
        if (!isCodeWord(word))
            return {};
        text.remove_prefix(word.size());
        const std::size_t row = kRowsOfCode.first[codeOf(word)];
        if (row == 0 || row > kBlanksRow) {
            result += word;
            continue;
        }
        for (const char c : replacementChain[row - 1].with) {
            if (c != ' ')
                result += c;
        }
    }
    return result;
}

} // namespace

std::size_t nextRow(std::string_view text, std::size_t row) {
    std::size_t next = kLastWalkedRow + 1;
    const auto consider = [row, &next](std::size_t other) {
        if (other > row)
            next = std::min(next, other);
    };
    std::size_t code = 0;   // of the hex digits last read
    std::size_t digits = 0; // how many of them stand in a row
    bool bars = false;
    for (const char c : text) {
        const int value = hexDigitValue(c);
        if (value >= 0) {
            code = (code * 16 + static_cast<std::size_t>(value)) & 0xFFFFU;
            ++digits;
            std::size_t found = digits >= 4 ? kRowsOfCode.first[code] : 0;
            for (; found != 0; found = kRowsOfCode.next[found])
                consider(found);
            if (digits >= 2 && (code & 0xFFU) == 0x80)
                consider(kFillerRow);
            continue;
        }
        digits = 0;
        if (c == ' ')
            consider(kBlanksRow);
        bars |= c == '|';
    }
    for (std::size_t other = row + 1; bars && other < next; ++other) {
        if (replacementChain[other - 1].key[0] == '|')
            next = other;
    }
    return next;
}

// A row whose key does not occur does nothing, so the rows whose keys occur are all there is to
// run. A row may create keys of later rows, by what it joins or inserts.
std::string replaceCodeWords(std::string_view hexText) {
    auto words = replaceWholeWords(hexText);
    std::size_t row = words ? kBlanksRow : kFirstWalkedRow - 1;
    std::string text = words ? std::move(*words) : std::string(hexText);
    while ((row = nextRow(text, row)) <= kLastWalkedRow)
        text = ReplaceAll(text, replacementChain[row - 1].key, replacementChain[row - 1].with);
    return text;
}

} // namespace norvane

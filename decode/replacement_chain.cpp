#include "decode/replacement_chain.h"

#include "decode/chain_table.h"
#include "decode/rows_of_code.h"
#include "framework/text/text.h"

#include <algorithm>
#include <bitset>
#include <optional>

namespace norvane {

namespace {

// Rows as indices of kReplacementChain.
constexpr std::size_t kFirst = kFirstWalkedRow - 1;
constexpr std::size_t kBlanks = kBlanksRow - 1;
constexpr std::size_t kFiller = kFillerRow - 1;

using Rows = std::bitset<kChainRows>;

bool isHexDigit(char c) {
    return hexDigitValue(c) >= 0;
}

/// The rows whose keys occur in `text`.
Rows rowsThatOccur(std::string_view text) {
    Rows rows;
    std::size_t code = 0;   // of the hex digits last read
    std::size_t digits = 0; // how many of them stand in a row
    bool bars = false;
    for (const char c : text) {
        const int value = hexDigitValue(c);
        if (value >= 0) {
            code = (code * 16 + static_cast<std::size_t>(value)) & 0xFFFFU;
            if (++digits >= 4) {
                for (std::size_t row = kRowsOfCode.first[code]; row != 0;
                     row = kRowsOfCode.next[row])
                    rows.set(row - 1);
            }
            if (digits >= 2 && (code & 0xFFU) == 0x80)
                rows.set(kFiller);
            continue;
        }
        digits = 0;
        bars |= c == '|';
        if (c == ' ')
            rows.set(kBlanks);
    }
    for (std::size_t row = kFirst; bars && row < kLastWalkedRow; ++row) {
        if (kReplacementChain[row].key[0] == '|')
            rows.set(row);
    }
    return rows;
}

/// Rows 2 to 480 in one go, where the text is words parted by blanks, since a key of these rows can
/// then only be a whole word; nothing for other text.
std::optional<std::string> replaceWholeWords(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        if (text[0] == ' ') {
            text.remove_prefix(1);
            continue;
        }
        const std::string_view word = text.substr(0, text.find(' '));
        if (word.size() != 4 || !std::all_of(word.begin(), word.end(), isHexDigit))
            return {};
        text.remove_prefix(word.size());
        const std::size_t row = kRowsOfCode.first[codeOf(word)];
        if (row == 0 || row > kBlanksRow) {
            result += word;
            continue;
        }
        for (const char c : kReplacementChain[row - 1].with) {
            if (c != ' ')
                result += c;
        }
    }
    return result;
}

/// Whether a row of this index can bring about keys of later rows: where a deletion joined what it
/// parted, or in a bar, or in a blank as long as blanks are a key.
bool bringsAboutKeys(std::size_t row) {
    const std::string_view with = kReplacementChain[row].with;
    return with.empty() || with.find('|') != std::string_view::npos ||
           (row < kBlanks && with.find(' ') != std::string_view::npos);
}

} // namespace

// A row whose key does not occur does nothing, so the rows whose keys occur are all there is to
// run.
std::string replaceCodeWords(std::string_view hexText) {
    auto words = replaceWholeWords(hexText);
    std::string text = words ? std::move(*words) : std::string(hexText);
    Rows rows = rowsThatOccur(text);
    for (std::size_t row = words ? kBlanks + 1 : kFirst; row < kLastWalkedRow; ++row) {
        if (!rows.test(row))
            continue;
        text = ReplaceAll(text, kReplacementChain[row].key, kReplacementChain[row].with);
        if (bringsAboutKeys(row))
            rows = rowsThatOccur(text);
    }
    return text;
}

} // namespace norvane

#include "decode/replacement_chain.h"

#include "decode/chain_table.h"
#include "decode/rows_of_code.h"
#include "framework/text.h"

#include <bitset>

namespace norvane {

namespace {

// Rows as indices of kReplacementChain.
constexpr std::size_t kFirst = kFirstWalkedRow - 1;
constexpr std::size_t kBlanks = kBlanksRow - 1;
constexpr std::size_t kFiller = kFillerRow - 1;

using Rows = std::bitset<kChainRows>;

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

} // namespace

// A row whose key does not occur does nothing. Only a row that ran can bring keys about: where a
// deletion joined what it parted, or in a bar or blank that it put in; the text is looked at again
// behind those.
std::string replaceCodeWords(std::string_view hexText) {
    std::string text(hexText);
    Rows rows = rowsThatOccur(text);
    for (std::size_t row = kFirst; row < kLastWalkedRow; ++row) {
        if (!rows.test(row))
            continue;
        const auto &[key, with] = kReplacementChain[row];
        text = ReplaceAll(text, key, with);
        if (with.empty() || with.find_first_of("| ") != std::string_view::npos)
            rows = rowsThatOccur(text);
    }
    return text;
}

} // namespace norvane

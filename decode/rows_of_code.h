#pragma once

#include "decode/chain_table.h"
#include "framework/text/text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace norvane {

constexpr bool isHexDigit(char c) {
    return hexDigitValue(c) >= 0;
}

/// Whether a text is a code word: four hex digits.
constexpr bool isCodeWord(std::string_view key) {
    return key.size() == 4 && std::all_of(key.begin(), key.end(), isHexDigit);
}

/// The value of a code word.
constexpr std::size_t codeOf(std::string_view word) {
    std::size_t code = 0;
    for (const char digit : word)
        code = code * 16 + static_cast<std::size_t>(hexDigitValue(digit));
    return code;
}

/// The rows of the chain that have a code word as their key: the first for each code, and the next
/// of the same key for each row. Rows count from 1; 0 is none.
struct RowsOfCode {
    std::array<unsigned short, 0x10000> first{};
    std::array<unsigned short, kChainRows + 1> next{};
};

inline constexpr RowsOfCode kRowsOfCode = [] {
    RowsOfCode rows;
    for (std::size_t row = kChainRows; row > 0; --row) {
        const std::string_view key = kReplacementChain.at(row - 1).key;
        if (!isCodeWord(key))
            continue;
        rows.next.at(row) = rows.first.at(codeOf(key));
        rows.first.at(codeOf(key)) = static_cast<unsigned short>(row);
    }
    return rows;
}();

} // namespace norvane

#pragma once

#include "decode/chain_table.h"
#include "decode/code_word.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace norvane {

/// The rows of the chain that have a code word as their key: the first for each code, and the next
/// of the same key for each row. Rows count from 1; 0 is none.
struct RowsOfCode {
    std::array<unsigned short, 0x10000> first{};
    std::array<unsigned short, kChainRows + 1> next{};
};

inline constexpr RowsOfCode kRowsOfCode = [] {
    RowsOfCode rows;
    for (std::size_t row = kChainRows; row > 0; --row) {
        const std::string_view key = replacementChain.at(row - 1).key;
        if (!isCodeWord(key))
            continue;
        rows.next.at(row) = rows.first.at(codeOf(key));
        rows.first.at(codeOf(key)) = static_cast<unsigned short>(row);
    }
    return rows;
}();

} // namespace norvane

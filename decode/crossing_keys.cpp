#include "decode/crossing_keys.h"

#include "decode/rows_of_code.h"

#include <string_view>

namespace norvane {

namespace {

using State = CrossingKeys::State;

/// A beginning of a key, as its value and its number of digits.
struct Beginning {
    unsigned value = 0;
    unsigned digits = 0;
    constexpr bool operator==(const Beginning &) const = default;

    /// The last `count` digits.
    constexpr Beginning last(unsigned count) const {
        return {value & ((1U << (4 * count)) - 1), count};
    }
    constexpr Beginning with(unsigned digit) const { return {value * 16 + digit, digits + 1}; }
};

/// Whether digits are a key of a row after the deletion of the blanks.
constexpr bool isKey(const Beginning &digits) {
    if (digits.digits == 2)
        return digits.value == kFillerByte;
    std::size_t row = digits.digits == 4 ? kRowsOfCode.first[digits.value] : 0;
    while (row != 0 && row < kBlanksRow)
        row = kRowsOfCode.next[row];
    return row != 0;
}

struct Trie {
    std::array<Beginning, CrossingKeys::kMatch> beginnings{};
    State count = 1; // the first is the empty one

    /// The state of a beginning, or kMatch when there is none.
    constexpr State stateOf(const Beginning &digits) const {
        for (State state = 0; state < count; ++state) {
            if (beginnings[state] == digits)
                return state;
        }
        return CrossingKeys::kMatch;
    }

    constexpr void addBeginningsOf(std::string_view key) {
        Beginning digits;
        for (const char digit : key) {
            if (stateOf(digits) == CrossingKeys::kMatch)
                beginnings.at(count++) = digits;
            digits = digits.with(static_cast<unsigned>(hexDigitValue(digit)));
        }
    }

    constexpr State next(State state, unsigned digit) const {
        const Beginning read = beginnings[state].with(digit);
        for (unsigned size = read.digits; size > 0; --size) {
            if (isKey(read.last(size)))
                return CrossingKeys::kMatch;
        }
        for (unsigned size = read.digits; size > 0; --size) {
            const State found = stateOf(read.last(size));
            if (found != CrossingKeys::kMatch)
                return found;
        }
        return CrossingKeys::kNothing;
    }
};

} // namespace

constexpr CrossingKeys kCrossingKeys = [] {
    Trie trie;
    for (std::size_t row = kBlanksRow + 1; row <= kLastWalkedRow; ++row) {
        const std::string_view key = replacementChain[row - 1].key;
        if (isHexDigit(key[0]))
            trie.addBeginningsOf(key);
    }
    CrossingKeys keys;
    for (auto &digits : keys.digit)
        digits.fill(CrossingKeys::kMatch);
    for (auto &bytes : keys.byte)
        bytes.fill(CrossingKeys::kMatch);
    for (State state = 0; state < trie.count; ++state) {
        for (unsigned digit = 0; digit < 16; ++digit)
            keys.digit[state][digit] = trie.next(state, digit);
    }
    for (State state = 0; state < trie.count; ++state) {
        for (unsigned byte = 0; byte < 256; ++byte)
            keys.byte[state][byte] = keys.digit[keys.digit[state][byte / 16]][byte % 16];
    }
    return keys;
}();

} // namespace norvane

#include "decode/crossing_keys.h"

#include "decode/chain_table.h"
#include "framework/text.h"

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

struct Trie {
    std::array<Beginning, CrossingKeys::kStates> beginnings{};
    State count = 1; // the first is the empty one
    std::array<Beginning, kChainRows> keys{};
    std::size_t keyCount = 0;

    constexpr bool isKey(const Beginning &digits) const {
        for (std::size_t i = 0; i < keyCount; ++i) {
            if (keys.at(i) == digits)
                return true;
        }
        return false;
    }

    /// The state of a beginning, or kMatch when there is none such.
    constexpr State stateOf(const Beginning &digits) const {
        for (State state = 0; state < count; ++state) {
            if (beginnings.at(state) == digits)
                return state;
        }
        return CrossingKeys::kMatch;
    }

    constexpr void addKey(std::string_view key) {
        Beginning digits;
        for (std::size_t i = 0; i < key.size(); ++i) {
            if (stateOf(digits) == CrossingKeys::kMatch)
                beginnings.at(count++) = digits;
            if (count == CrossingKeys::kMatch)
                throw "the keys have more beginnings than there are states";
            digits = digits.with(static_cast<unsigned>(hexDigitValue(key[i])));
        }
        keys.at(keyCount++) = digits;
    }

    constexpr State next(State state, unsigned digit) const {
        const Beginning read = beginnings.at(state).with(digit);
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

constexpr CrossingKeys kDerived = [] {
    Trie trie;
    for (std::size_t row = kBlanksRow + 1; row <= kLastWalkedRow; ++row) {
        const std::string_view key = kReplacementChain.at(row - 1).key;
        if (hexDigitValue(key[0]) >= 0)
            trie.addKey(key);
    }
    CrossingKeys keys;
    for (State state = 0; state < CrossingKeys::kStates; ++state) {
        for (unsigned digit = 0; digit < 16; ++digit)
            keys.digit.at(state).at(digit) =
                state < trie.count ? trie.next(state, digit) : CrossingKeys::kMatch;
    }
    for (State state = 0; state < CrossingKeys::kStates; ++state) {
        for (unsigned byte = 0; byte < 256; ++byte)
            keys.byte.at(state).at(byte) =
                keys.digit.at(keys.digit.at(state).at(byte / 16)).at(byte % 16);
    }
    return keys;
}();

} // namespace

constexpr CrossingKeys kCrossingKeys = kDerived;

} // namespace norvane

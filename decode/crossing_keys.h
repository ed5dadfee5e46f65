#pragma once

#include <array>
#include <cstddef>

/// Keys that match across words. Once the chain has deleted the blanks, nothing separates one
/// word's digits from the next one's. This automaton reads the digits of a line and knows, after
/// each, whether they completed a key, or else the longest beginning of a key that they end in.
namespace norvane {

struct CrossingKeys {
    using State = unsigned char;
    static constexpr State kNothing = 0; // the digits end in no beginning of a key
    static constexpr State kMatch = 63;  // a key was completed; no digit leads out of this state
    static constexpr std::size_t kStates = 64;

    /// The state after two more digits, which make a byte, and after one.
    std::array<std::array<State, 256>, kStates> byte{};
    std::array<std::array<State, 16>, kStates> digit{};
};

/// Derived from the rows of the chain after the deletion of the blanks.
extern const CrossingKeys kCrossingKeys;

} // namespace norvane

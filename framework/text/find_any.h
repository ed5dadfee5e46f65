#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace norvane {

/// The first place of `text` from byte `start` on that `test` marks, or the size of the text. The
/// test takes a character and the next one ('\0' after the last) and gives other than 0 to
/// mark it; and it takes blocks of 16 of each, of which it marks some by comparing with "==",
/// joined by "|" and "&".
template <class Test>
std::size_t findMarked(std::string_view text, std::size_t start, Test test) {
    using Block = char __attribute__((vector_size(16))); // compared all at once
    for (; start + sizeof(Block) < text.size(); start += sizeof(Block)) {
        Block block;
        Block behind;
        std::memcpy(&block, text.data() + start, sizeof block);
        std::memcpy(&behind, text.data() + start + 1, sizeof behind);
        const auto marks = test(block, behind);
        std::array<std::uint64_t, 2> halves{};
        std::memcpy(halves.data(), &marks, sizeof marks);
        if ((halves[0] | halves[1]) == 0)
            continue;
        if constexpr (std::endian::native == std::endian::big)
            break;
        const auto bytesBefore = [](std::uint64_t half) {
            return static_cast<std::size_t>(std::countr_zero(half)) / 8;
        };
        return start + (halves[0] != 0 ? bytesBefore(halves[0])
                                       : sizeof halves[0] + bytesBefore(halves[1]));
    }
    while (start < text.size() &&
           test(text[start], start + 1 < text.size() ? text[start + 1] : '\0') == 0)
        ++start;
    return start;
}

/// The place of the first of the characters `wanted` in `text` from byte `start` on, or the size of
/// the text.
template <char... wanted>
std::size_t findAny(std::string_view text, std::size_t start = 0) {
    return findMarked(text, start, [](auto c, auto /*behind*/) { return ((c == wanted) | ...); });
}

} // namespace norvane

#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace norvane {

/// The place of the first of the characters `wanted` in `text` from byte `start` on; the size of
/// the text when there is none. Looks at 16 bytes at a time.
template <char... wanted>
std::size_t findAny(std::string_view text, std::size_t start = 0) {
    using Block = char __attribute__((vector_size(16))); // compared all at once
    constexpr std::size_t kHalf = sizeof(std::uint64_t);
    for (; start + sizeof(Block) <= text.size(); start += sizeof(Block)) {
        Block block;
        std::memcpy(&block, text.data() + start, sizeof block);
        const auto found = ((block == wanted) | ...);
        std::array<std::uint64_t, 2> halves{};
        std::memcpy(halves.data(), &found, sizeof found);
        if ((halves[0] | halves[1]) == 0)
            continue;
        if constexpr (std::endian::native == std::endian::big)
            break;
        const auto bytesBefore = [](std::uint64_t half) {
            return static_cast<std::size_t>(std::countr_zero(half)) / 8;
        };
        return start + (halves[0] != 0 ? bytesBefore(halves[0]) : kHalf + bytesBefore(halves[1]));
    }
    while (start < text.size() && ((text[start] != wanted) && ...))
        ++start;
    return start;
}

} // namespace norvane

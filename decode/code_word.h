#pragma once

#include "framework/text/text.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace norvane {

constexpr bool isHexDigit(char c) {
    return hexDigitValue(c) >= 0;
}

/// Whether a text is a code word: four hex digits.
constexpr bool isCodeWord(std::string_view text) {
    return text.size() == 4 && std::all_of(text.begin(), text.end(), isHexDigit);
}

/// The value of a code word.
constexpr std::size_t codeOf(std::string_view word) {
    std::size_t code = 0;
    for (const char digit : word)
        code = code * 16 + static_cast<std::size_t>(hexDigitValue(digit));
    return code;
}

} // namespace norvane

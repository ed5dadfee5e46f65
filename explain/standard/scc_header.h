#pragma once

#include <string_view>

namespace norvane {

/// The first line of an SCC file, by which programs know the format.
inline constexpr std::string_view kSccHeader = "Scenarist_SCC V1.0";

/// What some editors put before a text in UTF-8.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

constexpr std::string_view withoutByteOrderMark(std::string_view text) {
    return text.substr(text.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0);
}

} // namespace norvane

#pragma once

#include <span>
#include <string>
#include <string_view>

namespace norvane {

/// "; did you mean 'WORD'?" when one of `words` is at most two letters away from `word`, with
/// `prefix` before it; otherwise empty.
std::string suggestion(std::string_view word, std::span<const std::string_view> words,
                       std::string_view prefix = "");

} // namespace norvane

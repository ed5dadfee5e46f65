#pragma once

#include <string>
#include <string_view>

namespace norvane {

/// What rows 2 to 581 of the replacement chain, one after another on the whole text, make of a
/// line's hex text. Any text is taken. Only the rows that can change the text are run.
std::string replaceCodeWords(std::string_view hexText);

} // namespace norvane

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace norvane {

/// The first row after `row` whose key is in `text`: no row between them does anything. One beyond
/// the last row of the walk, 581, when there is none.
std::size_t nextRow(std::string_view text, std::size_t row);

/// What rows 2 to 581 of the replacement chain, one after another on the whole text, make of a
/// line's hex text. Any text is taken. Only the rows that can change the text are run.
std::string replaceCodeWords(std::string_view hexText);

} // namespace norvane

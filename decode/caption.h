#pragma once

#include <string>
#include <string_view>

namespace norvane {

/// Appends the caption of a data line's hex text (words of four hex digits, CEA-608 byte pairs with
/// odd parity, separated by blanks): what the replacement chain makes of it, each pair of
/// characters to its letter, and each "****" to a blank. Any text is taken; what no table knows
/// stays as it is. The caption of nothing is two blanks. Throws OutOfBoundsException when the chain
/// leaves a single character.
void appendCaption(std::string &captions, std::string_view hexText);

} // namespace norvane

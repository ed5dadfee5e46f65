#pragma once

#include <string>
#include <string_view>

namespace norvane {

/// A caption byte with its odd parity bit (CEA-608), written as two hex digits of either case, to
/// its character. On any text: the 97 rows of the letter table one after another, each replacing
/// wherever its two digits stand. What no row knows stays as it is.
std::string convertSCC2Letters(std::string_view text);

/// Code words of special and extended characters (CEA-608), four hex digits, to the characters
/// alone, without the blank that the replacement chain puts after them. No stage of a decode uses
/// it.
std::string DoTheRest(std::string_view text);

} // namespace norvane

#pragma once

#include <string>
#include <string_view>

/// What <charconv> does with doubles, for standard libraries that leave them out of it. Works in
/// the C locale, whatever locale the program or another thread has.
namespace norvane::c_locale {

/// The decimal number (digits, fraction, exponent) that `text` starts with; it must start with a
/// digit, or with a point and a digit. Infinite beyond a double's range, 0 when too small for one.
double leadingNumber(std::string_view text);

/// `value` with so many significant digits, as std::chars_format::general has it.
std::string general(double value, int digits);

/// `value` with so many decimals, as std::chars_format::fixed has it.
std::string fixed(double value, int decimals);

} // namespace norvane::c_locale

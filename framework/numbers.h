#pragma once

#include <cstddef>
#include <string>

/// Numbers as text, written to the end of a text that the caller has. Str and Format stand on
/// these.
namespace norvane {

/// Appends the text that Str gives.
void appendSevenDigits(std::string &text, double value);

/// Val(Str(value)), without the text.
double sevenDigits(double value);

/// Appends `value` rounded to `decimals` decimals, with leading zeros up to `integerDigits` digits
/// in front of the point.
void appendFixed(std::string &text, double value, std::size_t integerDigits, std::size_t decimals);

} // namespace norvane

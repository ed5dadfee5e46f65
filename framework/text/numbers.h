#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

/// Numbers as text, written to the end of a text that the caller has. Str and Format stand on
/// these.
namespace norvane {

/// Appends the text that Str gives.
void appendSevenDigits(std::string &text, double value);

/// Val(Str(value)), without the text.
double sevenDigits(double value);

/// value * 10^decimals rounded to the nearest whole number, when plain arithmetic proves it: the
/// product is below 10^9, so its error is below 10^-6, and it is not so near to a half that this
/// matters.
std::optional<std::uint32_t> roundedProduct(double value, std::size_t decimals);

/// Appends `value` rounded to `decimals` decimals, with leading zeros up to `integerDigits` digits
/// in front of the point.
void appendFixed(std::string &text, double value, std::size_t integerDigits, std::size_t decimals);

} // namespace norvane

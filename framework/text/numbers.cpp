#include "framework/text/c_locale_numbers.h"
#include "framework/text/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace norvane {

namespace {

#ifndef __cpp_lib_to_chars // libc++: integers alone
using c_locale::fixed;
using c_locale::general;
using c_locale::leadingNumber;
#else
/// What a number that std::from_chars finds out of range is: infinite or nothing, by the decimal
/// place of its first digit that counts.
double outOfRangeValue(std::string_view number) {
    const std::size_t mantissaEnd = std::min(number.find_first_of("eE"), number.size());
    const std::string_view mantissa = number.substr(0, mantissaEnd);
    const auto integers = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissa.size()));
    const auto leading = static_cast<std::int64_t>(mantissa.find_first_of("123456789"));
    std::int64_t exponent = 0;
    if (mantissaEnd < number.size()) {
        std::string_view digits = number.substr(mantissaEnd + 1);
        const bool negative = digits[0] == '-';
        if (negative || digits[0] == '+')
            digits.remove_prefix(1);
        constexpr std::int64_t kBeyondAnyText = 1'000'000'000'000'000;
        if (std::from_chars(digits.data(), digits.data() + digits.size(), exponent).ec !=
            std::errc())
            exponent = kBeyondAnyText;
        exponent = negative ? -exponent : exponent;
    }
    return integers - leading + exponent > 0 ? std::numeric_limits<double>::infinity() : 0;
}

double leadingNumber(std::string_view text) {
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc::result_out_of_range)
        return outOfRangeValue(text.substr(0, static_cast<std::size_t>(end - text.data())));
    return value;
}

std::string print(double value, std::chars_format format, int precision) {
    std::array<char, 512> buffer; // the largest double has 309 digits
    const auto result = std::to_chars(buffer.begin(), buffer.end(), value, format, precision);
    return {buffer.data(), result.ptr};
}

std::string general(double value, int digits) {
    return print(value, std::chars_format::general, digits);
}

std::string fixed(double value, int decimals) {
    return print(value, std::chars_format::fixed, decimals);
}
#endif

} // namespace

double Val(std::string_view text) {
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    if (text.empty() ||
        !(isDigit(text[0]) || (text[0] == '.' && text.size() > 1 && isDigit(text[1]))))
        return 0;
    const double value = leadingNumber(text);
    return negative ? -value : value;
}

std::string Str(double value) {
    constexpr int kSignificantDigits = 7;
    return general(value == 0 ? 0 : value, kSignificantDigits);
}

std::string Format(double value, std::string_view mask) {
    const std::size_t integerPlaces = std::min(mask.find('.'), mask.size());
    const std::size_t decimals = mask.size() - std::min(integerPlaces + 1, mask.size());
    const std::string number = fixed(std::abs(value), static_cast<int>(decimals));
    const std::size_t integers = std::min(number.find('.'), number.size());
    return (std::signbit(value) ? "-" : "") +
           std::string(integerPlaces - std::min(integerPlaces, integers), '0').append(number);
}

} // namespace norvane

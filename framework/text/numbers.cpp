#include "framework/text/numbers.h"

#include "framework/text/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>

namespace norvane {

namespace {

constexpr std::array<double, 16> kPowerOfTen = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

} // namespace

std::optional<std::uint32_t> roundedProduct(double value, std::size_t decimals) {
    const double product = value * kPowerOfTen[decimals];
    if (!(product >= 0 && product < 1e9))
        return {};
    const auto whole = static_cast<std::uint32_t>(product);
    const double rest = product - whole;
    if (std::abs(rest - 0.5) < 1e-6)
        return {};
    return whole + static_cast<std::uint32_t>(rest > 0.5); // no branch: nobody can guess it
}

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

constexpr std::size_t kSignificantDigits = 7;

struct DecimalNumber {
    std::uint32_t digits;
    std::size_t decimals; // how many of the digits stand behind the point
};

/// The seven digits of a value from 1 on, unless they take an exponent or are too near to a half.
inline std::optional<DecimalNumber> sevenDigitNumber(double value) {
    if (!(value >= 1 && value < kPowerOfTen[kSignificantDigits]))
        return {};
    std::size_t integers = 1;
    for (std::size_t power = 1; power < kSignificantDigits; ++power) // counted without a branch
        integers += value >= kPowerOfTen[power] ? 1 : 0;
    const auto digits = roundedProduct(value, kSignificantDigits - integers);
    if (!digits || *digits >= kPowerOfTen[kSignificantDigits])
        return {};
    return DecimalNumber{*digits, kSignificantDigits - integers};
}

/// Appends `digits` with `decimals` of them behind the point, at least `integerDigits` in front.
void appendDecimal(std::string &text, std::uint32_t digits, std::size_t decimals,
                   std::size_t integerDigits) {
    std::array<char, 32> buffer{};
    char *const end = buffer.data() + buffer.size();
    char *begin = end;
    for (std::size_t place = 0; digits != 0 || place < decimals + integerDigits; ++place) {
        if (place == decimals && decimals != 0)
            *--begin = '.';
        *--begin = static_cast<char>('0' + digits % 10);
        digits /= 10;
    }
    text.append(begin, end);
}

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

} // namespace

double Val(std::string_view text) {
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    if (text.empty() ||
        !(isDigit(text[0]) || (text[0] == '.' && text.size() > 1 && isDigit(text[1]))))
        return 0;

    // Up to 15 digits make a whole number and a power of ten that a double holds exactly, and the
    // quotient of two such numbers is the nearest double.
    std::uint64_t digits = 0;
    std::size_t count = 0;
    std::size_t decimals = 0;
    bool point = false;
    for (; count < text.size(); ++count) {
        if (isDigit(text[count])) {
            digits = digits * 10 + static_cast<std::uint64_t>(text[count] - '0');
            decimals += point ? 1 : 0;
        } else if (text[count] == '.' && !point) {
            point = true;
        } else {
            break;
        }
        if (count == 15)
            break;
    }
    double value = 0;
    if (count < 15 && (count == text.size() || (text[count] != 'e' && text[count] != 'E'))) {
        value = static_cast<double>(digits) / kPowerOfTen[decimals];
    } else {
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
        if (error == std::errc::result_out_of_range)
            value = outOfRangeValue(text.substr(0, static_cast<std::size_t>(end - text.data())));
    }
    return negative ? -value : value;
}

void appendSevenDigits(std::string &text, double value) {
    if (value == 0) {
        text += '0';
        return;
    }
    if (auto number = sevenDigitNumber(value)) {
        while (number->decimals > 0 && number->digits % 10 == 0) {
            number->digits /= 10;
            --number->decimals;
        }
        appendDecimal(text, number->digits, number->decimals, 1);
        return;
    }
    std::array<char, 32> buffer{};
    const auto result = std::to_chars(buffer.begin(), buffer.end(), value,
                                      std::chars_format::general, kSignificantDigits);
    text.append(buffer.data(), result.ptr);
}

double sevenDigits(double value) {
    if (const auto number = sevenDigitNumber(value))
        return number->digits / kPowerOfTen[number->decimals];
    std::string text;
    appendSevenDigits(text, value);
    return Val(text);
}

void appendFixed(std::string &text, double value, std::size_t integerDigits, std::size_t decimals) {
    if (decimals < kPowerOfTen.size()) {
        if (const auto digits = roundedProduct(value, decimals)) {
            appendDecimal(text, *digits, decimals, integerDigits);
            return;
        }
    }
    std::array<char, 512> buffer{};
    const auto result = std::to_chars(buffer.begin(), buffer.end(), std::abs(value),
                                      std::chars_format::fixed, static_cast<int>(decimals));
    const std::string_view number(buffer.data(),
                                  static_cast<std::size_t>(result.ptr - buffer.data()));
    if (std::signbit(value))
        text += '-';
    const std::size_t integers = std::min(number.find('.'), number.size());
    text.append(integerDigits - std::min(integerDigits, integers), '0').append(number);
}

} // namespace norvane

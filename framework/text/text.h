#pragma once

#include "framework/text/failures.h"
#include "framework/text/text_array.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

/// Text operations. Text is UTF-8; a byte that is not valid UTF-8 passes unchanged and is a
/// character of its own. "Ignoring case" applies to ASCII letters only. Nothing here depends on
/// the C locale, and nothing throws unless its comment says so.
namespace norvane {

/// The platform's end of line, as files have it.
#ifdef _WIN32
inline constexpr std::string_view EndOfLine = "\r\n";
#else
inline constexpr std::string_view EndOfLine = "\n";
#endif

/// The leading number of `text`: sign, digits, fraction, exponent, as far as they go; 0 when it
/// starts with none (a leading blank, "inf", "nan" and hex forms do not count). What exceeds the
/// range of a double is infinite, what is too small for one is 0.
double Val(std::string_view text);

/// `value` rounded to seven significant digits, without zeros at the end, with an exponent when it
/// is below 0.0001 or needs more than seven integer digits: "59.96667", "60", "1e+07". Infinity is
/// "inf".
std::string Str(double value);

/// `value` by a mask of digit places: "0"; "00", which pads to two digits; "00.00", with two
/// decimals as well. Rounds to the nearest; a value halfway goes by its exact binary value, ties to
/// even. The decimal mark is a point.
std::string Format(double value, std::string_view mask);

/// The pieces of `text` between delimiters, at least one; with an empty delimiter one piece for
/// each character, none for an empty text.
TextArray Split(std::string_view text, std::string_view delimiter);

/// `text` with the first occurrence of `find` replaced, ignoring case. An empty `find` changes
/// nothing.
std::string Replace(std::string_view text, std::string_view find, std::string_view with);

/// `text` with every occurrence of `find` replaced, ignoring case: left to right, without overlap,
/// not searching what was inserted. An empty `find` changes nothing.
std::string ReplaceAll(std::string_view text, std::string_view find, std::string_view with);

/// ReplaceAll byte by byte, so that case counts.
std::string ReplaceAllB(std::string_view text, std::string_view find, std::string_view with);

/// Where `find` first occurs in `text` at byte `from` or later, ignoring case; npos when nowhere.
std::size_t findIgnoringCase(std::string_view text, std::string_view find, std::size_t from = 0);

/// The equality of texts: ignoring case.
bool equal(std::string_view a, std::string_view b);

/// The length of `text` in characters.
std::size_t Len(std::string_view text);

/// The length in bytes (1 to 4) of the character at the start of `text`, which must not be empty.
std::size_t characterSize(std::string_view text);

/// True when every byte of `text` is ASCII, so that its bytes are its characters.
bool isAscii(std::string_view text);

/// Whether a terminal or a page may act on a character instead of showing it: a control
/// character of ASCII or from U+0080 to U+009F, a single byte of that range, the separators U+2028
/// and U+2029, and the marks that turn the direction of text.
bool isHarmful(std::string_view character);

/// `text` with "?" for each harmful character but the tab.
std::string printable(std::string_view text);
void appendPrintable(std::string &result, std::string_view text);

/// A name or path in quotation marks for a message, control characters replaced.
std::string inQuotes(std::string_view text);

/// The same for a text's first 40 characters, with "…" when there are more.
std::string startInQuotes(std::string_view text);

/// The character with the ASCII code `code`.
std::string Chr(int code);

/// The largest whole number not above `value`.
double Floor(double value);

/// The hex digits by their values.
inline constexpr std::string_view kHexDigits = "0123456789abcdef";

/// The value of each byte as an ASCII hex digit of either case, 0 to 15, or -1.
inline constexpr auto kHexDigitValues = [] {
    std::array<signed char, 256> values{};
    values.fill(-1);
    for (signed char value = 0; value < 16; ++value) {
        values.at(static_cast<unsigned char>(kHexDigits[static_cast<std::size_t>(value)])) = value;
        values.at(static_cast<unsigned char>("0123456789ABCDEF"[value])) = value;
    }
    return values;
}();
constexpr int hexDigitValue(char digit) {
    return kHexDigitValues[static_cast<unsigned char>(digit)];
}

/// Whether a character is one of the ten ASCII digits.
constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

} // namespace norvane

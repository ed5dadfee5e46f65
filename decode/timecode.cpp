#include "decode/timecode.h"

#include "framework/text/numbers.h"
#include "framework/text/text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

namespace norvane {

namespace {

/// A word of hex text and its blank, and the frame that it takes.
constexpr double kCharactersPerWord = 5.0;

/// The first `count` fields as numbers.
template <std::size_t count>
std::array<double, count> fieldsOf(std::string_view timecode) {
    std::array<double, count> fields{};
    std::string_view rest = timecode;
    for (std::size_t field = 0; field < count; ++field) {
        const std::size_t colon = std::min(rest.find(':'), rest.size());
        if (colon == rest.size() && field + 1 < count) {
            throw OutOfBoundsException("the timecode " + startInQuotes(timecode) +
                                       " has fewer than " + (count == 4 ? "four" : "three") +
                                       " fields.");
        }
        fields[field] = Val(rest.substr(0, colon));
        rest.remove_prefix(std::min(colon + 1, rest.size()));
    }
    return fields;
}

/// The fields of a timecode of the ordinary form, eight digits in pairs, without reading them as
/// texts.
std::optional<std::array<double, 4>> ordinaryFields(std::string_view timecode) {
    constexpr std::string_view kForm = "00:00:00:00";
    if (timecode.size() != kForm.size())
        return {};
    std::array<double, 4> fields{};
    for (std::size_t field = 0; field < fields.size(); ++field) {
        const char *const place = timecode.data() + 3 * field;
        const auto tens = static_cast<unsigned>(place[0] - '0');
        const auto ones = static_cast<unsigned>(place[1] - '0');
        if (tens > 9 || ones > 9 || (field < 3 && place[2] != ':'))
            return {};
        fields[field] = tens * 10 + ones;
    }
    return fields;
}

double sccSeconds(std::string_view timecode) {
    const auto ordinary = ordinaryFields(timecode);
    const auto [hours, minutes, seconds, frames] = ordinary ? *ordinary : fieldsOf<4>(timecode);
    return hours * 3600 + minutes * 60 + seconds + frames / kFramesPerSecond;
}

/// The whole minutes of a count that goes through the text of Str: what stands there before the
/// point. In a text with an exponent, that is the first digit.
double wholeMinutes(double minutes) {
    constexpr double kFirstWithExponent = 1e7;
    const double rounded = sevenDigits(minutes);
    if (rounded < kFirstWithExponent)
        return Floor(rounded);
    const std::string text = Str(minutes);
    return Val(text.substr(0, text.find('.')));
}

void putPair(std::string &text, std::size_t place, unsigned number) {
    text[place] = static_cast<char>('0' + number / 10);
    text[place + 1] = static_cast<char>('0' + number % 10);
}

} // namespace

std::string timecodeToSecondsSCC(std::string_view timecode) {
    return Str(sccSeconds(timecode));
}

std::string timeCodeToSeconds(std::string_view timecode) {
    const auto [hours, minutes, seconds] = fieldsOf<3>(timecode);
    return Str(hours * 3600 + minutes * 60 + seconds);
}

// Numbers go from step to step as texts of seven significant digits, and what that loses belongs to
// the result: a quotient that rounds up to a whole minute is that minute. sevenDigits is such a
// passage.
std::string returnTimecode(double seconds) {
    const double allMinutes = seconds >= 60 ? wholeMinutes(seconds / 60) : 0;
    const double hours = Floor(allMinutes / 60);
    double minutes = allMinutes - hours * 60;
    if (minutes < 0 || minutes >= 60) // only of counts beyond a double's whole numbers
        minutes = sevenDigits(minutes);
    double rest = sevenDigits(seconds - allMinutes * 60);
    if (rest < 0)
        rest = 0; // as a text, it is below 10 and gets a "0" in front of its sign
    // The decimal mark is a point everywhere, so there is no comma to replace.
    const auto hundredths = roundedProduct(rest, 2);
    if (hours < 100 && minutes < 60 && hundredths && *hundredths < 10000) {
        std::string text = "00:00:00.00";
        putPair(text, 0, static_cast<unsigned>(hours));
        putPair(text, 3, static_cast<unsigned>(minutes));
        putPair(text, 6, *hundredths / 100);
        putPair(text, 9, *hundredths % 100);
        return text;
    }
    return Format(hours, "00") + ":" + Format(minutes, "00") + ":" + Format(rest, "00.00");
}

std::string unbufferedTimecode(std::string_view timecode, std::string_view hexText) {
    std::string colons(timecode);
    std::replace(colons.begin(), colons.end(), ';', ':');
    const double bufferTime =
        static_cast<double>(Len(hexText)) / kCharactersPerWord / kFramesPerSecond;
    return returnTimecode(sevenDigits(sccSeconds(colons)) + bufferTime);
}

} // namespace norvane

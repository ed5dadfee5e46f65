#include "decode/timecode.h"

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

/// The frames of "HH:MM:SS:FF", each ":" or ";", within a day; nothing for another text.
std::optional<std::uint32_t> ordinaryFrames(std::string_view timecode) {
    constexpr std::array<std::uint32_t, 4> kPerField = {0, 60, 60, kFramesPerSecond};
    constexpr std::uint32_t kDay = 24 * 60 * 60 * kFramesPerSecond;
    if (timecode.size() != 3 * kPerField.size() - 1)
        return {};
    std::uint32_t frames = 0;
    for (std::size_t field = 0; field < kPerField.size(); ++field) {
        const std::size_t place = 3 * field;
        const auto tens = static_cast<unsigned>(timecode[place] - '0');
        const auto ones = static_cast<unsigned>(timecode[place + 1] - '0');
        if (tens > 9 || ones > 9 ||
            (field > 0 && timecode[place - 1] != ':' && timecode[place - 1] != ';'))
            return {};
        frames = frames * kPerField[field] + tens * 10 + ones;
    }
    return frames < kDay ? std::optional(frames) : std::nullopt;
}

/// The start of an ordinary line in whole numbers, in place of timecodeToSecondsSCC and
/// returnTimecode: frames and characters are multiples of 1/150 s,
/// and half of that is the unit. Seven digits of seconds are off by too little to count, but from
/// 10,000 s on, where they are whole hundredths. Seven digits of minutes take what is less than
/// 10 units before a minute to the next one at times, and what is that minute to this one: the
/// empty text then, as for other lines.
std::string ordinaryStart(std::string_view timecode, std::size_t characters) {
    constexpr std::size_t kMostCharacters = 10'000;
    constexpr std::uint32_t kUnitsPerFrame = 10;
    constexpr std::uint32_t kUnitsPerCharacter = 2;
    constexpr std::uint32_t kUnitsPerHundredth = 3;
    constexpr std::uint32_t kUnitsPerMinute = 60 * 100 * kUnitsPerHundredth;
    constexpr std::uint32_t kFirstInHundredths = 10'000 * kFramesPerSecond;
    constexpr std::uint32_t kNearMinute = 10;
    std::string text;
    const auto frames = ordinaryFrames(timecode);
    if (!frames || characters > kMostCharacters)
        return text;
    const auto hundredths = [](std::uint32_t units) { // rounded; thirds are never halves
        return (units + 1) / kUnitsPerHundredth;
    };
    std::uint32_t units = *frames * kUnitsPerFrame;
    if (*frames >= kFirstInHundredths)
        units = hundredths(units) * kUnitsPerHundredth;
    units += static_cast<std::uint32_t>(characters) * kUnitsPerCharacter;
    const std::uint32_t rest = units % kUnitsPerMinute;
    if (rest == 0 || rest > kUnitsPerMinute - kNearMinute)
        return text;
    text = "00:00:00.00";
    const auto putPair = [&text](std::size_t place, std::uint32_t number) {
        text[place] = static_cast<char>('0' + number / 10);
        text[place + 1] = static_cast<char>('0' + number % 10);
    };
    putPair(0, units / kUnitsPerMinute / 60);
    putPair(3, units / kUnitsPerMinute % 60);
    putPair(6, hundredths(rest) / 100);
    putPair(9, hundredths(rest) % 100);
    return text;
}

} // namespace

std::string timecodeToSecondsSCC(std::string_view timecode) {
    const auto [hours, minutes, seconds, frames] = fieldsOf<4>(timecode);
    return Str(hours * 3600 + minutes * 60 + seconds + frames / kFramesPerSecond);
}

std::string timeCodeToSeconds(std::string_view timecode) {
    const auto [hours, minutes, seconds] = fieldsOf<3>(timecode);
    return Str(hours * 3600 + minutes * 60 + seconds);
}

// Numbers go from step to step as texts of seven significant digits, and what that loses belongs to
// the result: a quotient that rounds up to a whole minute is that minute, and the rest below zero
// becomes "0-..." and so nothing.
std::string returnTimecode(double seconds) {
    std::string hoursText = "00";
    std::string minutesText = "00";
    std::string secondsText = Str(seconds);
    if (seconds >= 60) {
        minutesText = Format(Val(Split(Str(seconds / 60), ".")[0]), "00");
        secondsText = Str(seconds - Val(minutesText) * 60);
    }
    if (Val(secondsText) < 10)
        secondsText = "0" + secondsText;
    if (Val(minutesText) >= 60) {
        hoursText = Format(Floor(Val(minutesText) / 60), "00");
        minutesText = Str(Val(minutesText) - Val(hoursText) * 60);
    }
    return hoursText + ":" + Format(Val(minutesText), "00") + ":" +
           Format(Val(secondsText), "00.00"); // whose decimal mark is a point everywhere
}

std::string unbufferedTimecode(std::string_view timecode, std::string_view hexText) {
    const std::size_t characters = Len(hexText);
    std::string time = ordinaryStart(timecode, characters);
    if (!time.empty())
        return time;
    time = timecode;
    std::replace(time.begin(), time.end(), ';', ':');
    const double bufferTime =
        static_cast<double>(characters) / kCharactersPerWord / kFramesPerSecond;
    time = returnTimecode(Val(timecodeToSecondsSCC(time)) + bufferTime);
    return time;
}

} // namespace norvane

#include "decode/timecode.h"

#include "framework/text.h"

namespace norvane {

namespace {

/// The leading three fields in seconds.
double wholeSeconds(const TextArray &fields, std::size_t needed, std::string_view timecode) {
    if (fields.size() < needed)
        throw OutOfBoundsException("the timecode “" + std::string(timecode) + "” has fewer than " +
                                   (needed == 4 ? "four" : "three") + " fields.");
    return Val(fields[0]) * 3600 + Val(fields[1]) * 60 + Val(fields[2]);
}

} // namespace

std::string timecodeToSecondsSCC(std::string_view timecode) {
    const TextArray fields = Split(timecode, ":");
    return Str(wholeSeconds(fields, 4, timecode) + Val(fields[3]) / kFramesPerSecond);
}

std::string timeCodeToSeconds(std::string_view timecode) {
    return Str(wholeSeconds(Split(timecode, ":"), 3, timecode));
}

// The carries go through text of seven significant digits, and what that loses belongs to the
// result: a quotient that Str rounds up to a whole minute is that minute, and the remainder below
// zero that this leaves reads as 0 behind the "0" put in front of it.
std::string returnTimecode(double seconds) {
    std::string hoursText = "00";
    std::string minutesText = "00";
    std::string secondsText;
    if (seconds >= 60) {
        const std::string quotient = Str(seconds / 60);
        minutesText = Format(Val(quotient.substr(0, quotient.find('.'))), "00");
        secondsText = Str(seconds - Val(minutesText) * 60);
    } else {
        secondsText = Str(seconds);
    }
    if (Val(secondsText) < 10)
        secondsText.insert(0, "0");
    if (Val(minutesText) >= 60) {
        hoursText = Format(Floor(Val(minutesText) / 60), "0");
        minutesText = Str(Val(minutesText) - Val(hoursText) * 60);
    }
    if (hoursText != "00" && Val(hoursText) < 10)
        hoursText.insert(0, "0");
    // Format's decimal mark is a point on every system, so there is no comma to replace here.
    secondsText = Format(Val(secondsText), "00.00");
    minutesText = Format(Val(minutesText), "00");
    return hoursText + ":" + minutesText + ":" + secondsText;
}

} // namespace norvane

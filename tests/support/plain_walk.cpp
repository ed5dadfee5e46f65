#include "tests/support/plain_walk.h"

#include "explain/walk/plain_walk.h"
#include "framework/text/text.h"

namespace norvane::plain {

std::string replaceCodeWords(std::string_view hexText) {
    TracedText text(hexText);
    replaceCodeWords(text);
    return std::string(text.text());
}

std::string caption(std::string_view hexText) {
    TracedText text(hexText);
    replaceCodeWords(text);
    if (!readLetters(text))
        throw OutOfBoundsException("no pair");
    return std::string(text.text());
}

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
        hoursText = Format(Floor(Val(minutesText) / 60), "0");
        minutesText = Str(Val(minutesText) - Val(hoursText) * 60);
    }
    if (hoursText != "00" && Val(hoursText) < 10)
        hoursText = "0" + hoursText;
    secondsText = Replace(Format(Val(secondsText), "00.00"), ",", ".");
    minutesText = Format(Val(minutesText), "00");
    return hoursText + ":" + minutesText + ":" + secondsText;
}

std::string cleanTranscript(std::string_view transcript) {
    TracedText text(transcript);
    cleanTranscript(text);
    return std::string(text.text());
}

} // namespace norvane::plain

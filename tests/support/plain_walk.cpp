#include "tests/support/plain_walk.h"

#include "decode/accent_pairs.h"
#include "decode/chain_table.h"
#include "decode/letters.h"
#include "framework/text/text.h"

namespace norvane::plain {

std::string replaceCodeWords(std::string_view hexText) {
    std::string text(hexText);
    for (std::size_t row = kFirstWalkedRow; row <= kLastWalkedRow; ++row)
        text = ReplaceAll(text, kReplacementChain[row - 1].key, kReplacementChain[row - 1].with);
    return text;
}

std::string caption(std::string_view hexText) {
    std::string text = replaceCodeWords(hexText);
    if (text.empty())
        text = "2020";
    const TextArray charArray = Split(text, "");
    TextArray pairArray;
    for (std::size_t j = 0; j + 1 < charArray.size(); j += 2)
        pairArray.Append(std::string(charArray[j]).append(charArray[j + 1]));
    std::string joined = convertSCC2Letters(pairArray[0]);
    for (std::size_t pair = 1; pair < pairArray.size(); ++pair)
        joined += convertSCC2Letters(pairArray[pair]);
    return ReplaceAll(joined, "****", " ");
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

std::string cleanTranscript(std::string text) {
    text = ReplaceAll(text, "]\\t ", "]\\t");
    for (const TableRow &pair : kAccentPairs)
        text = ReplaceAllB(text, pair.key, pair.with);
    text = ReplaceAll(text, "|", " ");
    text = ReplaceAll(text, "  ", " ");
    text = ReplaceAll(text, "  ", " ");
    return ReplaceAll(text, "  ", " ");
}

} // namespace norvane::plain

#include "tests/support/plain_road.h"

#include "decode/timecode.h"
#include "explain/walk/plain_walk.h"
#include "framework/text/reg_ex.h"
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

std::string cleanTranscript(std::string_view transcript) {
    TracedText text(transcript);
    cleanTranscript(text);
    return std::string(text.text());
}

bool Road::decode(std::string_view text) {
    const RegEx patternRegEx{R"(\d\d\:)"};
    const RegEx tabRegEx{"\t"};
    const std::string unix = ReplaceAllB(ReplaceAllB(text, "\r\n", "\n"), "\r", "\n");
    const TextArray lines = Split(unix, "\n");
    std::vector<std::string_view> lineArray;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (!lines[i].empty())
            lineArray.push_back(lines[i]);
    }
    for (std::size_t i = 1; i < lineArray.size(); ++i) {
        if (!patternRegEx.Search(lineArray[i]) || !tabRegEx.Search(lineArray[i]))
            return false;
        const TextArray fieldArray = Split(lineArray[i], "\t");
        std::string timecode(fieldArray[0]);
        if (unbuffered) {
            const double bufferTime = static_cast<double>(Len(fieldArray[1])) / 5.0 / 30.0;
            timecode = ReplaceAll(timecode, ";", ":");
            timecode = returnTimecode(Val(timecodeToSecondsSCC(timecode)) + bufferTime);
        }
        timeCodeArray.push_back(timecode);
        captionArray2.push_back(caption(fieldArray[1]));
    }
    return true;
}

std::string Road::transcript(const std::string &name) {
    for (std::string &caption : captionArray2) {
        TracedText entry(caption);
        cleanEntry(entry);
        caption = entry.text();
    }
    std::string transcriptText;
    for (std::size_t i = 0; i < captionArray2.size(); ++i) {
        if (i == timeCodeArray.size())
            throw OutOfBoundsException("");
        timeCodeArray[i] = Replace(timeCodeArray[i], ",", ".");
        if (timecodeForm)
            transcriptText += "[" + timeCodeArray[i] + "]\t" + captionArray2[i] + "\n\n";
        else
            transcriptText += paragraphForm ? " " + captionArray2[i] : captionArray2[i] + "\n";
    }
    return "Transcripts of " + name + "\n\n" + cleanTranscript(transcriptText) + "\n";
}

} // namespace norvane::plain

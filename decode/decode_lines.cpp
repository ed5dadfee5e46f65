#include "decode/caption.h"
#include "decode/letters.h"
#include "decode/timecode.h"
#include "framework/text/regex.h"
#include "framework/windows/desktop.h"
#include "shell/window1.h"

namespace norvane {

namespace {

constexpr double kProgressMaximum = 65536.0;

/// The lines of the stream that are not empty; the views are the stream's.
std::vector<std::string_view> readLines(TextInputStream &stream) {
    constexpr std::size_t kShortLine = 80; // bytes; room for more lines than nearly all files have
    std::vector<std::string_view> lineArray;
    lineArray.reserve(stream.size() / kShortLine);
    do {
        const std::string_view line = stream.ReadLine();
        if (!line.empty())
            lineArray.push_back(line);
    } while (!stream.EndOfFile());
    return lineArray;
}

} // namespace

bool Window1::decodeLines(TextInputStream &stream) {
    const RegEx patternRegEx("\\d\\d\\:");
    const RegEx tabRegEx("\t");

    ProgressText.Text = "Reading SCC File...";
    ProgressText.Visible = true;
    ProgressBar1.Value = 0;
    ProgressBar1.Maximum = static_cast<int>(kProgressMaximum);

    const std::vector<std::string_view> lineArray = readLines(stream);
    // Room ahead costs nothing where it is not used.
    captionArray2.reserve(lineArray.size(), stream.size() / 2);
    timeCodeArray.reserve(timeCodeArray.size() + lineArray.size(), stream.size() / 8);
    // The first line is the header, whatever stands there.
    for (std::size_t i = 1; i < lineArray.size(); ++i) {
        const double part = static_cast<double>(i) / static_cast<double>(lineArray.size() - 1);
        ProgressBar1.Value = static_cast<int>(part * kProgressMaximum);
        ProgressBar1.Refresh(true);

        if (!patternRegEx.Search(lineArray[i]))
            return stopAtBadLine("There does not appear to be any timecode in this file.");
        const auto tab = tabRegEx.Search(lineArray[i]);
        if (!tab) {
            return stopAtBadLine(
                "This SCC file does not appear to be formatted correctly. It needs to "
                "have a tab between the timecode and the hexidecimal caption code.");
        }
        // Of the fields between tabs, only two count.
        const std::string_view timecode = lineArray[i].substr(0, tab->start);
        const std::string_view behind = lineArray[i].substr(tab->start + 1);
        const std::string_view hexText = behind.substr(0, behind.find('\t'));
        try {
            if (RadioButton1.Value)
                timeCodeArray.Append(unbufferedTimecode(timecode, hexText));
            else
                timeCodeArray.Append(timecode);
            captionArray2.appendWith(
                [&](std::string &captions) { appendCaption(captions, hexText); });
        } catch (const OutOfBoundsException &failure) {
            // Only here it is known where the text stood that text code could not take.
            throw OutOfBoundsException("data line " + std::to_string(i) + " of " +
                                       quoted(fileName) + ": " + failure.what());
        }
    }
    return true;
}

bool Window1::stopAtBadLine(const std::string &message) {
    MsgBox(message);
    clearScreen();
    return false;
}

void Window1::clearScreen() {
    ProgressText.Text = "";
    ProgressBar1.Visible = false;
}

std::string Window1::timecodeToSecondsSCC(std::string_view timecode) {
    return norvane::timecodeToSecondsSCC(timecode);
}
std::string Window1::timeCodeToSeconds(std::string_view timecode) {
    return norvane::timeCodeToSeconds(timecode);
}
std::string Window1::returnTimecode(double seconds) {
    return norvane::returnTimecode(seconds);
}
std::string Window1::convertSCC2Letters(std::string_view text) {
    return norvane::convertSCC2Letters(text);
}
std::string Window1::DoTheRest(std::string_view text) {
    return norvane::DoTheRest(text);
}

} // namespace norvane

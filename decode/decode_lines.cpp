#include "decode/caption.h"
#include "framework/desktop.h"
#include "framework/regex.h"
#include "shell/window1.h"

namespace norvane {

namespace {

constexpr double kProgressMaximum = 65536.0;

/// The lines of the stream that are not empty; the views are the stream's.
std::vector<std::string_view> readLines(TextInputStream &stream) {
    std::vector<std::string_view> lineArray;
    do {
        const std::string_view line = stream.ReadLine();
        if (!line.empty())
            lineArray.push_back(line);
    } while (!stream.EndOfFile());
    return lineArray;
}

std::string_view takeField(std::string_view &line) {
    const std::size_t tab = std::min(line.find('\t'), line.size());
    const std::string_view field = line.substr(0, tab);
    line.remove_prefix(std::min(tab + 1, line.size()));
    return field;
}

} // namespace

bool Window1::decodeLines(TextInputStream &stream) {
    RegEx patternRegEx("\\d\\d\\:");
    RegEx tabRegEx("\t");

    ProgressText.Text = "Reading SCC File...";
    ProgressText.Visible = true;
    ProgressBar1.Value = 0;
    ProgressBar1.Maximum = static_cast<int>(kProgressMaximum);

    const std::vector<std::string_view> lineArray = readLines(stream);
    // The first line is the header, whatever stands there.
    for (std::size_t i = 1; i < lineArray.size(); ++i) {
        const double part = static_cast<double>(i) / static_cast<double>(lineArray.size() - 1);
        ProgressBar1.Value = static_cast<int>(part * kProgressMaximum);
        ProgressBar1.Refresh(true);

        if (!patternRegEx.Search(lineArray[i]))
            return stopAtBadLine("There does not appear to be any timecode in this file.");
        if (!tabRegEx.Search(lineArray[i]))
            return stopAtBadLine(
                "This SCC file does not appear to be formatted correctly. It needs to "
                "have a tab between the timecode and the hexidecimal caption code.");
        std::string_view line = lineArray[i];
        const std::string_view timecode = takeField(line);
        const std::string_view hexText = takeField(line);
        if (RadioButton1.Value)
            timeCodeArray.Append(unbufferedTimecode(timecode, hexText));
        else
            timeCodeArray.Append(timecode);
        captionArray2.appendWith([&](std::string &captions) { appendCaption(captions, hexText); });
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

#include "decode/data_line.h"
#include "decode/letters.h"
#include "decode/timecode.h"
#include "framework/text/text.h"
#include "framework/windows/desktop.h"
#include "shell/window1.h"

namespace norvane {

bool Window1::decodeLines(TextInputStream &stream) {
    constexpr double kProgressMaximum = 65536.0;
    ProgressText.Text = "Reading SCC File...";
    ProgressText.Visible = true;
    ProgressBar1.Value = 0;
    ProgressBar1.Maximum = static_cast<int>(kProgressMaximum);
    ProgressBar1.Refresh(true); // before the first question to the stream, which reads the file

    const std::vector<std::string_view> lineArray = keptLines(stream.text());
    // Reserved room costs nothing if unused.
    captionArray2.reserve(lineArray.size(), stream.text().size() / 2);
    timeCodeArray.reserve(timeCodeArray.size() + lineArray.size(), stream.text().size() / 8);
    for (std::size_t i = 1; i < lineArray.size(); ++i) {
        const double part = static_cast<double>(i) / static_cast<double>(lineArray.size() - 1);
        ProgressBar1.Value = static_cast<int>(part * kProgressMaximum);
        ProgressBar1.Refresh(true);

        const auto line = takeApart(lineArray[i]);
        if (const Refusal *refusal = std::get_if<Refusal>(&line)) {
            MsgBox(std::string(messageOf(*refusal)));
            clearScreen();
            return false;
        }
        try {
            appendEntry(std::get<DataLine>(line),
                        RadioButton1.Value ? Clock::unbuffered : Clock::scc, timeCodeArray,
                        captionArray2);
        } catch (const OutOfBoundsException &failure) {
            // Only here it is known where the text stood that text code could not take.
            throw OutOfBoundsException("data line " + std::to_string(i) + " of " +
                                       inQuotes(fileName) + ": " + failure.what());
        }
    }
    return true;
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

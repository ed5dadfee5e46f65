#include "explain/checks/check_timecodes.h"

#include "decode/timecode.h"
#include "framework/text/text.h"

namespace norvane {

namespace {

std::string textOf(const FrameTimecode &timecode) {
    return frameTimecode(timecode.count(), timecode.dropFrame);
}

} // namespace

void TimecodeCheck::look(const SccLine &line, Findings &findings) {
    if (!line.timecode) {
        findings.add(line.number, FindingKind::timecodeForm,
                     startInQuotes(line.data.timecode) +
                         " is not of the form HH:MM:SS:FF (drop-frame: HH:MM:SS;FF): "
                         "correct it.");
        return;
    }
    const FrameTimecode &timecode = *line.timecode;
    const bool exists = timecode.exists();
    if (timecode.frames >= kFramesPerSecond) {
        findings.add(line.number, FindingKind::frame,
                     "There is no frame " + std::to_string(timecode.frames) +
                         ", since a second has the frames 00 to 29: correct the timecode.");
    } else if (!exists) {
        findings.add(line.number, FindingKind::droppedFrame,
                     std::string(line.data.timecode) +
                         " does not exist: drop-frame leaves out the frames 00 and 01 of each "
                         "minute but every tenth. Correct the timecode.");
    }
    const Before now{timecode, line.number, static_cast<long>(line.words.size())};
    if (!first_)
        first_ = now;
    const auto mark = [](const FrameTimecode &of) {
        return of.dropFrame ? "“;” (drop-frame)" : "“:” (non-drop)";
    };
    if (timecode.dropFrame != first_->timecode.dropFrame) {
        findings.add(line.number, FindingKind::separator,
                     std::string("The frames stand behind ") + mark(timecode) + ", and in line " +
                         std::to_string(first_->line) + " behind " + mark(first_->timecode) +
                         ": ask which of them is meant.");
    }
    if (!exists)
        return; // where it lies, nobody knows
    if (before_ && before_->timecode.dropFrame == timecode.dropFrame) {
        const std::string place = "line " + std::to_string(before_->line);
        const long start = before_->timecode.count();
        const long end = start + before_->words;
        if (timecode.count() < start) {
            findings.add(line.number, FindingKind::order,
                         "The timecode lies before that of " + place + ", " +
                             textOf(before_->timecode) + ": put the lines in order.");
        } else if (timecode.count() < end) {
            findings.add(line.number, FindingKind::overlap,
                         "Sending " + place + " takes until " +
                             frameTimecode(end, timecode.dropFrame) + ", " +
                             counted(end - timecode.count(), "frame") +
                             " too long: move one of the lines.");
        }
    }
    before_ = now;
}

} // namespace norvane

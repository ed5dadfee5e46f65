#include "explain/checks/check_timecodes.h"

#include "framework/text/text.h"

namespace norvane {

namespace {

std::string textOf(const FrameTimecode &timecode) {
    return frameTimecode(timecode.count(), timecode.dropFrame);
}

std::string markOf(const FrameTimecode &timecode) {
    return timecode.dropFrame ? "“;” (drop-frame)" : "“:” (non-drop)";
}

bool exists(const FrameTimecode &timecode) {
    return timecode.frames < 30 && !timecode.isDropped();
}

template <class TextOf>
void tell(const SccLine &line, FindingKind kind, Findings &findings, TextOf text) {
    findings.add(line.number, kind, [&] { return findingOn(line, text()); });
}

} // namespace

void TimecodeCheck::look(const SccLine &line, Findings &findings) {
    if (!line.timecode) {
        tell(line, FindingKind::timecodeForm, findings, [&] {
            return startInQuotes(line.data.timecode) +
                   " is not in the form HH:MM:SS:FF (drop-frame: HH:MM:SS;FF): correct it.";
        });
        return;
    }
    const FrameTimecode &timecode = *line.timecode;
    lookAtFrames(line, findings);
    const Before now{timecode, line.number, static_cast<long>(line.words.size())};
    if (!first_)
        first_ = now;
    if (timecode.dropFrame != first_->timecode.dropFrame) {
        tell(line, FindingKind::separator, findings, [&] {
            return "The separator is " + markOf(timecode) + ", but in line " +
                   std::to_string(first_->line) + " it is " + markOf(first_->timecode) +
                   ": ask which is meant.";
        });
    }
    if (comesAgain(line)) {
        tell(line, FindingKind::twice, findings, [&] {
            return "Duplicate of line " + std::to_string(lineBeforeNumber_) +
                   ": delete one of them.";
        });
    } else if (exists(timecode) && before_ && before_->timecode.dropFrame == timecode.dropFrame) {
        lookAtOrder(line, findings);
    }
    lineBeforeNumber_ = line.number;
    if (exists(timecode)) // one that does not exist has no place in the order
        before_ = now;
}

void TimecodeCheck::lookAtFrames(const SccLine &line, Findings &findings) {
    const FrameTimecode &timecode = *line.timecode;
    if (timecode.hours >= 24) {
        tell(line, FindingKind::hours, findings, [&] {
            return "Hour " + std::to_string(timecode.hours) +
                   " does not exist (00 to 23): correct the timecode.";
        });
    }
    if (timecode.frames >= 30) {
        tell(line, FindingKind::frame, findings, [&] {
            return "Frame " + std::to_string(timecode.frames) +
                   " does not exist (00 to 29): correct the timecode.";
        });
    } else if (timecode.isDropped()) {
        tell(line, FindingKind::droppedFrame, findings, [&] {
            return std::string(line.data.timecode) +
                   " does not exist, since drop-frame skips frames 00 and 01 of each minute "
                   "except every tenth: correct the timecode.";
        });
    }
}

void TimecodeCheck::lookAtOrder(const SccLine &line, Findings &findings) const {
    const FrameTimecode &timecode = *line.timecode;
    const long start = before_->timecode.count();
    const long end = start + before_->words;
    if (timecode.count() < start) {
        tell(line, FindingKind::order, findings, [&] {
            return "The timecode is earlier than " + textOf(before_->timecode) + " in line " +
                   std::to_string(before_->line) + ": put the lines in order.";
        });
    } else if (timecode.count() < end) {
        tell(line, FindingKind::overlap, findings, [&] {
            return "Line " + std::to_string(before_->line) + " takes until " +
                   frameTimecode(end, timecode.dropFrame) + " to send, " +
                   counted(end - timecode.count(), "frame") + " too long: move one of the lines.";
        });
    }
}

/// Whether a line repeats the previous one; blanks at the end do not count.
bool TimecodeCheck::comesAgain(const SccLine &line) {
    std::string_view text = line.text;
    while (text.ends_with(' '))
        text.remove_suffix(1);
    const bool isSame = text == lineBefore_;
    lineBefore_ = text;
    return isSame;
}

} // namespace norvane

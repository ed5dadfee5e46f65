#include "explain/standard/timecode_frames.h"

#include "decode/timecode.h"
#include "framework/text/text.h"

#include <array>

// Drop-frame (SMPTE ST 12) skips two numbers in nine of ten minutes: ten minutes are 17982 frames.

namespace norvane {

namespace {

constexpr long kFramesPerMinute = kFramesPerSecond * 60L;
constexpr long kDroppedPerMinute = 2;
constexpr long kMinutesPerDrop = 10; // in which one minute drops nothing

std::string twoDigits(long number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

} // namespace

long FrameTimecode::count() const {
    const long allMinutes = hours * 60L + minutes;
    const long dropped =
        dropFrame ? kDroppedPerMinute * (allMinutes - allMinutes / kMinutesPerDrop) : 0;
    return allMinutes * kFramesPerMinute + long{seconds} * kFramesPerSecond + frames - dropped;
}

bool FrameTimecode::exists() const {
    return frames < kFramesPerSecond && !isDropped();
}

bool FrameTimecode::isDropped() const {
    return dropFrame && minutes % kMinutesPerDrop != 0 && seconds == 0 &&
           frames < kDroppedPerMinute;
}

std::optional<FrameTimecode> readFrameTimecode(std::string_view text) {
    constexpr std::string_view kForm = "00:00:00:00";
    constexpr std::size_t kLastMark = 8;
    if (text.size() != kForm.size())
        return {};
    std::array<int, 4> fields{};
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (isDigit(text[i]) != (kForm[i] == '0'))
            return {};
        if (isDigit(text[i]))
            fields.at(i / 3) = fields.at(i / 3) * 10 + text[i] - '0';
        else if (text[i] != ':' && (i != kLastMark || text[i] != ';'))
            return {};
    }
    const FrameTimecode timecode{fields[0], fields[1], fields[2], fields[3],
                                 text[kLastMark] == ';'};
    if (timecode.minutes >= 60 || timecode.seconds >= 60)
        return {};
    return timecode;
}

std::string frameTimecode(long count, bool dropFrame) {
    if (dropFrame) {
        constexpr long kPerTen =
            kMinutesPerDrop * kFramesPerMinute - (kMinutesPerDrop - 1) * kDroppedPerMinute;
        const long rest = count % kPerTen;
        const long minutes = // those that began with a drop
            rest < kFramesPerMinute
                ? 0
                : (rest - kDroppedPerMinute) / (kFramesPerMinute - kDroppedPerMinute);
        count += kDroppedPerMinute * ((kMinutesPerDrop - 1) * (count / kPerTen) + minutes);
    }
    const long seconds = count / kFramesPerSecond;
    return twoDigits(seconds / 3600) + ":" + twoDigits(seconds / 60 % 60) + ":" +
           twoDigits(seconds % 60) + (dropFrame ? ";" : ":") + twoDigits(count % kFramesPerSecond);
}

} // namespace norvane

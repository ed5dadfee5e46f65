#include "explain/reports/line_choice.h"

#include "decode/timecode.h"

#include <algorithm>

namespace norvane {

namespace {

/// The timecode of a time, counted as `dropFrame` says.
std::optional<FrameTimecode> timecodeOf(std::string_view time, bool dropFrame) {
    constexpr std::size_t kSeconds = 8; // "HH:MM:SS"
    const std::string_view fraction = time.substr(std::min(kSeconds, time.size()));
    if (fraction.empty() || fraction[0] == '.') {
        auto timecode = readFrameTimecode(std::string(time.substr(0, kSeconds)) + ":00");
        if (!timecode || fraction.find_first_not_of("0123456789", 1) != std::string_view::npos)
            return {};
        const double part = fraction.size() > 1 ? Val("0" + std::string(fraction)) : 0;
        timecode->frames = static_cast<int>(part * kFramesPerSecond);
        timecode->dropFrame = dropFrame;
        return timecode;
    }
    auto timecode = readFrameTimecode(time);
    if (timecode)
        timecode->dropFrame = dropFrame;
    return timecode;
}

/// The rows of a caption as one text.
std::string readOf(const Caption &caption) {
    std::string text;
    for (const CaptionRow &row : caption.rows)
        text.append(text.empty() ? "" : " ").append(textOf(row));
    return text;
}

bool holds(std::string_view text, std::string_view wanted) {
    return findIgnoringCase(text, wanted) != std::string_view::npos;
}

} // namespace

bool isTime(std::string_view text) {
    return timecodeOf(text, false).has_value();
}

LineChooser::LineChooser(const LineChoice &choice, const FilmCaptions &captions)
    : choice_(choice), captions_(captions) {
    if (const auto timecode = timecodeOf(choice.time, captions.isDropFrame()))
        frame_ = timecode->count();
}

bool LineChooser::holdsText(const Explanation &explanation) const {
    if (explanation.entry && holds(*explanation.entry, choice_.text))
        return true;
    const auto loaded = captions_.loadedBy(explanation.line->number);
    return std::any_of(loaded.begin(), loaded.end(), [this](const FilmCaptions::Link &link) {
        return holds(readOf(captions_.list()[link.caption]), choice_.text);
    });
}

/// Whether the line is sent then, or what it loaded is seen, or its entry begins.
bool LineChooser::isAtTime(const Explanation &explanation) const {
    const SccLine &line = *explanation.line;
    if (explanation.start == choice_.time)
        return true;
    if (line.timecode) {
        const long start = line.timecode->count();
        if (frame_ >= start && frame_ < start + static_cast<long>(line.words.size()))
            return true;
    }
    const auto loaded = captions_.loadedBy(line.number);
    return std::any_of(loaded.begin(), loaded.end(), [this](const FilmCaptions::Link &link) {
        const Caption &caption = captions_.list()[link.caption];
        return caption.shownBy && caption.shownBy->frame <= frame_ &&
               (!caption.removedBy || frame_ < caption.removedBy->frame);
    });
}

bool LineChooser::wants(const Explanation &explanation) const {
    return (choice_.text.empty() || holdsText(explanation)) &&
           (choice_.time.empty() || isAtTime(explanation)) &&
           (!choice_.advised || !explanation.advice.empty());
}

bool LineChooser::wantsHeader(std::size_t line, bool hasAdvice) const {
    return choice_.isInRange(line) && choice_.text.empty() && choice_.time.empty() &&
           (!choice_.advised || hasAdvice);
}

} // namespace norvane

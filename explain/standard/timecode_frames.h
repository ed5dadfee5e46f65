#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace norvane {

/// A timecode of an SCC file as SMPTE ST 12 counts: 30 frames to a second. With drop-frame, the
/// numbers of frames 00 and 01 are left out in each minute but those that ten divides.
struct FrameTimecode {
    int hours = 0;
    int minutes = 0;
    int seconds = 0;
    int frames = 0;
    bool dropFrame = false;

    /// Frames since 00:00:00:00.
    long count() const;

    /// Whether a second has such a frame, and drop-frame does not leave it out.
    bool exists() const;

    /// Whether the number is one of those that drop-frame leaves out.
    bool isDropped() const;
};

/// Reads "HH:MM:SS:FF", or with ";" before the frames for drop-frame: two digits each, minutes and
/// seconds below 60. Frames may be any. Nothing for any other text.
std::optional<FrameTimecode> readFrameTimecode(std::string_view text);

/// The timecode of a count of frames.
std::string frameTimecode(long count, bool dropFrame);

} // namespace norvane

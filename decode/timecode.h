#pragma once

#include <string>
#include <string_view>

namespace norvane {

/// Nominal frames per second, for every file: drop-frame numbering (SMPTE ST 12) is not
/// compensated.
inline constexpr int kFramesPerSecond = 30;

/// The seconds of an SCC timecode "HH:MM:SS:FF", as the text of Str: "01:02:03:15" is "3723.5".
/// Each field goes through Val; further fields are ignored. Throws OutOfBoundsException when there
/// are fewer than four fields.
std::string timecodeToSecondsSCC(std::string_view timecode);

/// The seconds of a time "HH:MM:SS", whose seconds may have decimals, as the text of Str. Throws
/// OutOfBoundsException when there are fewer than three fields.
std::string timeCodeToSeconds(std::string_view timecode);

/// Seconds as "HH:MM:SS.hh": at least two digits of hours and no day's end; 0 for negative seconds.
/// Never carries a rounded "60.00" into the minutes.
std::string returnTimecode(double seconds);

/// A data line's timecode, with ":" or ";" before the frames, moved later by the time that its
/// hex text takes to arrive in the decoder's buffer: a frame for each word. As "HH:MM:SS.hh".
/// Throws OutOfBoundsException when there are fewer than four fields.
std::string unbufferedTimecode(std::string_view timecode, std::string_view hexText);

} // namespace norvane

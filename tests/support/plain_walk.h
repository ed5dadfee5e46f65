#pragma once

#include <string>
#include <string_view>

/// The yardstick: the tables walked row by row, on everything, as they are written down. Where the
/// program has such a walk of its own, these are its results.
namespace norvane::plain {

/// Rows 2 to 581 of the chain.
std::string replaceCodeWords(std::string_view hexText);

/// The caption of a line's hex text. Throws OutOfBoundsException as appendCaption does.
std::string caption(std::string_view hexText);

/// The corrected timecode of a count of seconds, all on texts.
std::string returnTimecode(double seconds);

/// The text passes over a composed transcript.
std::string cleanTranscript(std::string_view transcript);

} // namespace norvane::plain

#pragma once

#include "framework/text/text_array.h"

#include <string>
#include <string_view>
#include <vector>

/// The yardstick: the way of a file to its transcript as it is told, step by step on plain texts,
/// with no tables made ahead and no memory shared. The program's own ways to the same are fast.
namespace norvane::plain {

/// Rows 2 to 581 of the chain.
std::string replaceCodeWords(std::string_view hexText);

/// The caption of a line's hex text. Throws OutOfBoundsException as appendCaption does.
std::string caption(std::string_view hexText);

/// The text passes over a composed transcript.
std::string cleanTranscript(std::string_view transcript);

/// The options and what the last decode left.
struct Road {
    bool unbuffered = false;
    bool timecodeForm = false;
    bool paragraphForm = false;
    std::vector<std::string> captionArray2{};
    std::vector<std::string> timeCodeArray{};

    /// A file's text to entries; false when a line is refused.
    bool decode(std::string_view text);

    /// The entries to what is written in a file.
    std::string transcript(const std::string &name);
};

} // namespace norvane::plain

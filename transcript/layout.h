#pragma once

#include "framework/text/text_array.h"

#include <string>

namespace norvane {

enum class Form { timecode, line, paragraph };

/// The body of a transcript before its text passes. The first "," of each timecode becomes a "." in
/// the array itself, in every form. Throws OutOfBoundsException when there are fewer timecodes than
/// captions.
std::string layOut(Form form, const TextArray &captions, TextArray &timecodes);

/// The body of a transcript, all passes done. The entry passes and the commas of the timecodes
/// change the arrays themselves. Throws as layOut does.
std::string composeTranscript(Form form, TextArray &captions, TextArray &timecodes);

/// The first line of a transcript; an empty one stands between it and the body.
std::string headingOf(const std::string &name);

/// What names a transcript: the file's name up to its first point.
std::string baseNameOf(const std::string &fileName);

} // namespace norvane

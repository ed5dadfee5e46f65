#pragma once

#include "framework/text/text.h"

#include <string>

namespace norvane {

enum class Form { timecode, line, paragraph };

/// The body of a transcript before its text passes. The first "," of each timecode becomes a "." in
/// the array itself, in every form. Throws OutOfBoundsException when there are fewer timecodes than
/// captions.
std::string layOut(Form form, const TextArray &captions, TextArray &timecodes);

} // namespace norvane

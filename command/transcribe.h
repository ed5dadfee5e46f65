#pragma once

#include "command/input.h"
#include "command/options.h"

namespace norvane {

/// Writes the transcript of a file to standard output, or to a file of the output folder, which
/// must exist. Throws Problem, and IOException for what cannot be written.
void transcribe(const Input &input, const Options &options);

} // namespace norvane

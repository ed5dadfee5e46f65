#pragma once

#include "command/options.h"

#include <string>

namespace norvane {

/// Writes the transcript of the file `path`, or of standard input for "-", to standard output, to
/// the output file, or to a file of the output folder, which must exist. Throws Problem, and
/// FileFailure for what cannot be written.
void transcribe(const std::string &path, const Options &options);

} // namespace norvane

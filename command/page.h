#pragma once

#include "command/options.h"

namespace norvane {

/// Makes a page of each file, and an index of several: to standard output, to the output folder, or
/// to the user's own cache, from where it is opened. A file that is refused has a page that says
/// so. False when a file was refused or a page could not be written, as standard error then says.
bool makePages(const Options &options);

} // namespace norvane

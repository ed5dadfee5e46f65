#pragma once

#include "command/options.h"

namespace norvane {

/// What cannot be combined in a call; empty when all can.
std::string conflictIn(const Options &options);

} // namespace norvane

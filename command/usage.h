#pragma once

#include <string>

namespace norvane {

/// What --help prints.
std::string usage();

} // namespace norvane

#pragma once

#include <string>
#include <vector>

namespace norvane {

/// A program's arguments, its own name first, with each @FILE replaced by the options in that file.
/// A line of it is an option and, after an equals sign or blanks, its value, if it has one; empty
/// lines and lines that begin with # are skipped. After "--" nothing counts as such a file. Throws
/// Problem for a file that cannot be read.
std::vector<std::string> withOptionFiles(int count, char **arguments);

} // namespace norvane

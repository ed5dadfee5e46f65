#pragma once

#include <string>
#include <vector>

namespace norvane {

/// A program's arguments, its own name first, with what the files named @FILE hold in their places.
/// A line of such a file is an option with its value, if it has one, behind an equals sign or
/// blanks; empty lines and those that begin with # are passed over. Behind "--" nothing is taken
/// for such a file. Throws Problem for a file that cannot be read.
std::vector<std::string> withOptionFiles(int count, char **arguments);

} // namespace norvane

#pragma once

#include "framework/files/bytes.h"

#include <string>
#include <string_view>

namespace norvane {

/// Something that ended the work on one file, for the user.
struct Problem {
    std::string text;     // what it is; the program's own words where it has some
    std::string help{};   // what to do; may be empty
    std::size_t line = 0; // of the file; 0 when it concerns none
};

/// A file of the command line, or standard input, whole in memory.
struct Input {
    std::string name; // without its folder
    Bytes text{};

    /// Reads `path`, or standard input when it is "-". Throws Problem.
    explicit Input(const std::string &path);
};

/// A path as the file system wants it. Throws Problem for the empty one.
std::string absolutePath(const std::string &path);

/// What messages call a file of the command line, without control characters.
std::string shownName(const std::string &path);

/// Prints a problem of a file to standard error.
void tell(const std::string &shownFile, const Problem &problem);

/// Whether something can be read from standard input that nobody types.
bool inputIsPiped();

} // namespace norvane

#pragma once

#include <string>

namespace norvane {

/// Something that ended the work on one file, for the user.
struct Problem {
    std::string text;     // what it is; the program's own words where it has some
    std::string help{};   // what to do; may be empty
    std::size_t line = 0; // of the file; 0 when it concerns none
};

} // namespace norvane

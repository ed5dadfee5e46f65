#pragma once

#include <cstddef>
#include <string>

/// SCC files for measuring. The same calls give the same bytes; no line repeats soon.
namespace norvane::made {

enum class Kind {
    film,        // what a pop-on film is: English of one to three rows, doubled codes, and more
                 // lines that only show or clear the screen than lines of text
    randomWords, // lines of 30 words of any two caption bytes
};

/// The hex text of the data line number `line`.
std::string hexText(Kind kind, std::size_t line);

/// A file of at least `bytes` bytes: an empty line between data lines, timecodes that rise, CRLF.
std::string scc(Kind kind, std::size_t bytes);

} // namespace norvane::made

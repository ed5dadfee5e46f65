#pragma once

#include <string>
#include <vector>

namespace norvane {

/// What a call of norvane-transcript asks for.
struct Options {
    std::string form = "timecode";    // or "line" or "paragraph"
    std::string clock = "unbuffered"; // or "scc"
    std::string outputFolder{};       // empty: standard output
    bool force = false;
    std::vector<std::string> files{};

    /// When not empty, all there is to do: print this and end with exitStatus.
    std::string answer{};
    int exitStatus = 0;
};

/// Reads the arguments behind the program's name. Wrong usage gives an answer with exit status 2.
Options readOptions(const std::vector<std::string> &arguments);

} // namespace norvane

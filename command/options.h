#pragma once

#include "decode/data_line.h"
#include "explain/checks/check.h"
#include "explain/reports/line_choice.h"
#include "transcript/layout.h"

#include <string>
#include <vector>

namespace norvane {

enum class Task { transcribe, explain, check, page };

/// What a call of norvane-transcript asks for.
struct Options {
    Task task = Task::transcribe;
    Form form = Form::timecode;
    Clock clock = Clock::unbuffered;
    bool heading = true;
    std::string outputFolder{}; // this and outputFile empty: standard output
    std::string outputFile{};
    std::string stdinName = "stdin"; // what standard input is called
    bool force = false;
    bool json = false;
    CheckRules rules{};
    bool summary = false;
    LineChoice choice{};
    bool screen = false;
    bool open = false;
    std::vector<std::string> files{}; // "-" is standard input

    /// When not empty, all there is to do: print this and end with exitStatus.
    std::string answer{};
    int exitStatus = 0;
};

/// Reads a program's arguments, its own name first. Wrong usage gives an answer with exit status 2.
/// Without a file, it is standard input when `inputIsPiped`.
Options readOptions(int count, char **arguments, bool inputIsPiped);

/// What of it cannot be combined; empty when all can (option_conflicts.cpp).
std::string conflictIn(const Options &options);

/// What --help prints (usage.cpp).
std::string usage();

} // namespace norvane

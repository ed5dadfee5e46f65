#pragma once

#include "command/options.h"
#include "explain/checks/problem.h"

#include <string>

namespace norvane {

/// A file of the command line and some of its lines.
struct Place {
    std::string path;
    std::size_t firstLine = 0; // 0: all
    std::size_t lastLine = 0;
};

/// Splits FILE[:LINE] or FILE:FIRST-LAST. The whole is the name of a file if that exists. Throws
/// Problem for what is not a line of an existing file.
Place placeOf(const std::string &argument);

/// Prints explanations of the lines of a file, or of one of them. Throws Problem and FileFailure.
void explainFile(const Place &place, const Options &options);

/// Prints the names of the columns of summaries.
void printSummaryHead();

/// Prints the findings on a file, or its summary. False when there are findings. Throws Problem and
/// FileFailure.
bool checkFile(const std::string &path, const Options &options);

/// A problem of a file as a JSON object and its end of line.
std::string jsonOf(const Problem &problem, const std::string &shownFile);

} // namespace norvane

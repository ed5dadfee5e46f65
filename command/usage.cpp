#include "command/options.h"

namespace norvane {

namespace {

constexpr const char *kUsage =
    "Usage: norvane-transcript [OPTION]... FILE...\n"
    "       norvane-transcript --explain [--find TEXT] [--at TIME] [--advised] [--screen]\n"
    "                          [--json] FILE[:LINE|:FIRST-LAST]...\n"
    "       norvane-transcript --check [--json] [--each|--summary] [--without KIND,...]\n"
    "                          [--limit NAME=VALUE]... [@RULES] FILE...\n"
    "       norvane-transcript --page [--open] FILE...\n"
    "Turns Scenarist Closed Caption files (.scc) into readable transcripts, explains what became\n"
    "of each word of a file, checks files, or shows them as pages. FILE - is standard input,\n"
    "which is also read if no FILE is given and input is piped in.\n"
    "\n"
    "  --form timecode|line|paragraph  layout of the transcript (timecode)\n"
    "  --clock unbuffered|scc          start times corrected for the buffer, or as in the\n"
    "                                  file (unbuffered)\n"
    "  --no-heading                    omit the heading, which names the file\n"
    "  -o FILE                         write to FILE, not to standard output\n"
    "  --output-dir DIR                write DIR/NAME.txt for each file; NAME is the name of\n"
    "                                  the file up to its first period\n"
    "  --force                         replace existing transcripts and pages\n"
    "  --stdin-name NAME               name for standard input (stdin)\n"
    "  --explain                       explain data lines: what a viewer sees and when, each\n"
    "                                  word, what it means, what became of it, what to do\n"
    "  --find TEXT                     only lines with TEXT in the transcript or on the screen\n"
    "  --at TIME                       only lines sent or seen at TIME, written 00:01:02:03 as\n"
    "                                  in the file or 00:01:02.10 as in the transcript\n"
    "  --advised                       only lines with something to correct\n"
    "  --screen                        show rows as they appear on the screen\n"
    "  --check                         print what is wrong with each file: FILE:LINE: KIND: text;\n"
    "                                  findings with the same cause are reported once\n"
    "  --each                          report every finding\n"
    "  --summary                       print one line per file instead, with tabs: captions,\n"
    "                                  times, findings, fastest reading, longest row, most rows\n"
    "  --limit NAME=VALUE              require more than the standard does; the names are\n"
    "                                  reading-rate (maximum characters per second), shortest,\n"
    "                                  longest (frames on the screen), gap (minimum frames\n"
    "                                  between captions), row-length, rows (maximums),\n"
    "                                  upper-rows (how many of rows 5 to 11 may be used; 0)\n"
    "  @RULES                          read options from the file RULES, one per line\n"
    "  --without KIND,...              omit kinds of findings; the kinds are\n";

constexpr const char *kUsageAfterKinds =
    "  --json                          print one JSON object per line\n"
    "  --page                          print a page for a browser: the captions with all that\n"
    "                                  --explain and --check report; with --output-dir, write\n"
    "                                  DIR/NAME.html for each file and DIR/index.html\n"
    "  --open                          open the page\n"
    "  --help, -h                      print this help and exit\n"
    "  --version                       print the version and exit\n"
    "\n"
    "Exit status: 0 for success, 1 if a transcript failed or a check found something, 2 for wrong\n"
    "usage or if --check or --explain could not read a file.\n";

} // namespace

std::string usage() {
    constexpr const char *kIndent = "                                  ";
    constexpr std::size_t kWidth = 56; // of the column after the indent
    std::string text = kUsage;
    std::string line;
    for (const std::string_view name : kFindingNames) {
        if (line.size() + name.size() + 1 > kWidth) {
            text += kIndent + line + "\n";
            line.clear();
        }
        line.append(line.empty() ? "" : " ").append(name);
    }
    return text + kIndent + line + "\n" + kUsageAfterKinds;
}

} // namespace norvane

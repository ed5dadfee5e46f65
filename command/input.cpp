#include "command/input.h"

#include "command/report_files.h"
#include "explain/checks/film_transcript.h"
#include "framework/files/file_failure.h"
#include "framework/text/text.h"

#include <cstdio>
#include <filesystem>
#include <new>
#include <system_error>
#include <unistd.h>

namespace norvane {

namespace {

constexpr std::size_t kBlock = std::size_t{1} << 15U;

/// Whether a path stands for what a shell hands over without a name.
bool isNameless(const std::string &path) {
    return path == "-" || path == "/dev/stdin" || path.starts_with("/dev/fd/") ||
           path.starts_with("/proc/self/fd/");
}

disk::InputFile openFile(const std::string &path) {
    try {
        return path == "-" ? disk::InputFile::standardInput() : disk::InputFile::named(path);
    } catch (const FileFailure &failure) {
        const bool isFolder = failure.error() == 0 && path != "-";
        throw Problem(failure.reason(), isFolder ? "Name its files: " + printable(path) +
                                                       (path.ends_with('/') ? "*.scc" : "/*.scc")
                                                 : "");
    }
}

} // namespace

std::string absolutePath(const std::string &path) {
    std::error_code error;
    std::string absolute = std::filesystem::absolute(path, error).string();
    if (path.empty() || error)
        throw Problem("cannot be found.");
    return absolute;
}

std::string shownName(const std::string &path, const Options &options) {
    return path.empty() ? "''" : printable(isNameless(path) ? options.stdinName : path);
}

Input::Input(const std::string &path, const Options &options)
    : name_(isNameless(path) ? options.stdinName : path), file_(openFile(path)), bytes_(kBlock) {
    name_.erase(0, name_.rfind('/') + 1);
    if (file_.isRegular() && !isNameless(path))
        requireSccName(name_, "pipe it in");
}

bool Input::readSome() {
    try {
        return file_.readSome(bytes_);
    } catch (const FileFailure &failure) {
        throw Problem(failure.reason());
    }
}

/// Reads as much as there is already and more, so that no byte of a long line is looked at often.
void Input::readOn() {
    bytes_.drop(bytes_.size() - lines_.rest().size());
    if (bytes_.restSize() < bytes_.size())
        bytes_.grow(2 * bytes_.size());
    while (!ended_ && bytes_.restSize() != 0)
        ended_ = !readSome();
    lines_ = LineReader(bytes_.view(), lines_.number());
}

std::string_view Input::nextLine() {
    for (;;) {
        const LineReader before = lines_;
        const std::string_view line = lines_.nextNotEmpty();
        if (!lines_.atEnd() || ended_)
            return line;
        lines_ = before; // the line, or its ending, may continue after the block
        readOn();
    }
}

std::string_view Input::beginning() {
    readOn();
    return bytes_.view();
}

std::string_view Input::all(std::size_t limit) {
    while (!ended_ && bytes_.size() <= limit)
        readOn();
    return bytes_.view();
}

void tell(const std::string &shownFile, const Problem &problem, bool json) {
    const std::string place =
        problem.line == 0 ? "norvane-transcript: " + shownFile + (shownFile.empty() ? "" : ": ")
                          : shownFile + ":" + std::to_string(problem.line) + ": ";
    const std::string help = problem.help.empty() ? "" : "  " + problem.help + "\n";
    std::fputs((place + problem.what() + "\n" + help).c_str(), stderr);
    if (!json)
        return;
    try {
        disk::writeAll(STDOUT_FILENO, jsonOf(problem, shownFile), "standard output");
    } catch (const std::exception &) { // often the problem itself, which has been reported
    }
}

bool doAndTell(const std::string &shownFile, const std::function<void()> &work, bool json) {
    try {
        work();
        return true;
    } catch (const Problem &problem) {
        tell(shownFile, problem, json);
    } catch (const std::bad_alloc &) {
        tell(shownFile, Problem("not enough memory."), json);
    } catch (const std::exception &failure) {
        tell(shownFile, Problem(failure.what()), json);
    }
    return false;
}

} // namespace norvane

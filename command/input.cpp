#include "command/input.h"

#include "explain/checks/film_transcript.h"
#include "framework/text/text.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <new>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace norvane {

namespace {

constexpr const char *kStandardInput = "-";
constexpr const char *kStandardInputName = "stdin";
constexpr std::size_t kBlock = std::size_t{1} << 15U;

disk::InputFile openFile(const std::string &path) {
    const std::string absolute = absolutePath(path);
    std::string problem;
    disk::InputFile file(absolute, problem);
    if (file.isOpen())
        return file;
    // What tells it has the file's name in front already.
    const std::string named = inQuotes(absolute) + " ";
    if (problem.starts_with(named))
        problem.erase(0, named.size());
    throw Problem{problem, disk::kindOf(absolute, disk::Kind::other) == disk::Kind::folder
                               ? "Name its files: " + printable(path) +
                                     (path.ends_with('/') ? "*.scc" : "/*.scc")
                               : ""};
}

} // namespace

std::string absolutePath(const std::string &path) {
    std::error_code error;
    std::string absolute = std::filesystem::absolute(path, error).string();
    if (path.empty() || error)
        throw Problem{"cannot be found."};
    return absolute;
}

std::string shownName(const std::string &path) {
    return path == kStandardInput ? kStandardInputName : printable(path);
}

Input::Input(const std::string &path)
    : name_(path == kStandardInput ? kStandardInputName : path.substr(path.rfind('/') + 1)),
      bytes_(kBlock) {
    if (path == kStandardInput) {
        struct stat status {};
        const off_t start = lseek(STDIN_FILENO, 0, SEEK_CUR);
        if (fstat(STDIN_FILENO, &status) == 0 && S_ISREG(status.st_mode) && start >= 0)
            left_ = static_cast<std::size_t>(std::max(status.st_size - start, off_t{0}));
        return;
    }
    file_ = openFile(path);
    requireSccName(name_, "pipe it in");
}

bool Input::readSome() {
    if (file_)
        return file_->readSome(bytes_);
    const ssize_t count = read(STDIN_FILENO, bytes_.rest(), std::min(bytes_.restSize(), left_));
    if (count < 0)
        throw Problem{"cannot be read: " + std::generic_category().message(errno) + "."};
    bytes_.fill(static_cast<std::size_t>(count));
    left_ -= static_cast<std::size_t>(count);
    return count > 0;
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
        lines_ = before; // the line, or its end, may go on behind the block
        readOn();
    }
}

std::string_view Input::beginning() {
    readOn();
    return bytes_.view();
}

std::string_view Input::all() {
    while (!ended_)
        readOn();
    return bytes_.view();
}

void tell(const std::string &shownFile, const Problem &problem) {
    const std::string place = problem.line == 0 ? "" : std::to_string(problem.line) + ": ";
    const std::string help = problem.help.empty() ? "" : "  " + problem.help + "\n";
    std::fputs(
        (shownFile + ":" + (place.empty() ? " " : "") + place + problem.text + "\n" + help).c_str(),
        stderr);
}

bool doAndTell(const std::string &shownFile, const std::function<void()> &work) {
    try {
        work();
        return true;
    } catch (const Problem &problem) {
        tell(shownFile, problem);
    } catch (const std::bad_alloc &) {
        tell(shownFile, {"there is not enough memory."});
    } catch (const std::exception &failure) {
        tell(shownFile, {failure.what()});
    }
    return false;
}

bool inputIsPiped() {
    struct stat status {};
    return fstat(STDIN_FILENO, &status) == 0 &&
           (S_ISFIFO(status.st_mode) || S_ISREG(status.st_mode));
}

} // namespace norvane

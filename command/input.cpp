#include "command/input.h"

#include "decode/data_line.h"
#include "framework/files/disk.h"
#include "framework/text/text.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace norvane {

namespace {

constexpr const char *kStandardInput = "-";
constexpr const char *kStandardInputName = "stdin";

Bytes readStandardInput() {
    constexpr std::size_t kBlock = 65536;
    Bytes bytes(kBlock);
    for (;;) {
        const ssize_t count = read(STDIN_FILENO, bytes.rest(), bytes.restSize());
        if (count < 0)
            throw Problem{"cannot be read: " + std::generic_category().message(errno) + "."};
        if (count == 0)
            return bytes;
        bytes.fill(static_cast<std::size_t>(count));
        if (bytes.restSize() == 0)
            bytes.grow(2 * bytes.size());
    }
}

Bytes readFile(const std::string &path) {
    const std::string absolute = absolutePath(path);
    std::string problem;
    disk::InputFile file(absolute, problem);
    if (file.isOpen())
        return file.readAll();
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
    : name(path == kStandardInput ? kStandardInputName : path.substr(path.rfind('/') + 1)) {
    if (path == kStandardInput) {
        text = readStandardInput();
        return;
    }
    text = readFile(path);
    if (!isSccName(name))
        throw Problem{std::string(kNotSccMessage),
                      "If it is one, give it a name that ends in .scc, or pipe it in."};
}

void tell(const std::string &shownFile, const Problem &problem) {
    const std::string place = problem.line == 0 ? "" : std::to_string(problem.line) + ": ";
    const std::string help = problem.help.empty() ? "" : "  " + problem.help + "\n";
    std::fputs(
        (shownFile + ":" + (place.empty() ? " " : "") + place + problem.text + "\n" + help).c_str(),
        stderr);
}

bool inputIsPiped() {
    struct stat status {};
    return fstat(STDIN_FILENO, &status) == 0 &&
           (S_ISFIFO(status.st_mode) || S_ISREG(status.st_mode));
}

} // namespace norvane

#pragma once

#include "command/options.h"
#include "explain/checks/problem.h"
#include "framework/files/bytes.h"
#include "framework/files/disk.h"
#include "framework/text/line_reader.h"

#include <functional>
#include <string>
#include <string_view>

namespace norvane {

/// A file of the command line, or standard input, read block by block: its memory stays small and
/// in the processor's cache, however long the file is.
class Input {
  public:
    /// Opens `path`, or standard input when it is "-". Pipes are read as standard input is. Throws
    /// Problem.
    Input(const std::string &path, const Options &options);

    const std::string &name() const { return name_; } // without its folder
    const disk::InputFile &file() const { return file_; }

    /// The next line that is not empty; the empty text at the end. It holds until the next call.
    /// Throws Problem.
    std::string_view nextLine();
    std::size_t lineNumber() const { return lines_.number(); } // from 1, empty ones counted

    /// The first block, for a look before any line is read; all of the file, or more than `limit`
    /// bytes of it. Throw as nextLine does.
    std::string_view beginning();
    std::string_view all(std::size_t limit = SIZE_MAX);

  private:
    bool readSome();
    void readOn();

    std::string name_;
    disk::InputFile file_;
    Bytes bytes_;
    LineReader lines_{std::string_view()};
    bool ended_ = false;
};

/// A path as the file system wants it. Throws Problem for the empty one.
std::string absolutePath(const std::string &path);

/// What messages call a file of the command line, without control characters.
std::string shownName(const std::string &path, const Options &options);

/// Prints a problem, of a file unless its name is empty, to standard error, and with `json` as an
/// object to standard output.
void tell(const std::string &shownFile, const Problem &problem, bool json = false);

/// Does `work`, and reports what it throws as a problem of `shownFile`, which it may change. False
/// if it threw.
bool doAndTell(const std::string &shownFile, const std::function<void()> &work, bool json = false);

} // namespace norvane

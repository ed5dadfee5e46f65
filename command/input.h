#pragma once

#include "explain/checks/problem.h"
#include "framework/files/bytes.h"
#include "framework/files/disk.h"
#include "framework/text/line_reader.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace norvane {

/// A file of the command line, or standard input, read block by block: its memory stays small and
/// in the processor's cache, however long the file is.
class Input {
  public:
    /// Opens `path`, or standard input when it is "-". Throws Problem.
    explicit Input(const std::string &path);

    const std::string &name() const { return name_; } // without its folder

    /// Bytes of the file when it was opened; 0 where nobody knows.
    std::size_t size() const { return file_ ? file_->size() : 0; }

    /// Null for standard input.
    const disk::InputFile *file() const { return file_ ? &*file_ : nullptr; }

    /// The next line that is not empty; the empty text at the end. It holds until the next call.
    /// Throws Problem and IOException.
    std::string_view nextLine();
    std::size_t lineNumber() const { return lines_.number(); } // from 1, empty ones counted

    /// The first block, for a look before any line is read; all of the file. Throw as nextLine
    /// does.
    std::string_view beginning();
    std::string_view all();

  private:
    bool readSome();
    void readOn();

    std::string name_;
    std::optional<disk::InputFile> file_{}; // nothing for standard input
    Bytes bytes_;
    LineReader lines_{std::string_view()};
    bool ended_ = false;
    std::size_t left_ = SIZE_MAX; // of standard input, where its size was known at the start
};

/// A path as the file system wants it. Throws Problem for the empty one.
std::string absolutePath(const std::string &path);

/// What messages call a file of the command line, without control characters.
std::string shownName(const std::string &path);

/// Prints a problem of a file to standard error.
void tell(const std::string &shownFile, const Problem &problem);

/// Does `work`. What it throws is told as a problem of `shownFile`, a text that it may change.
/// Whether it threw nothing.
bool doAndTell(const std::string &shownFile, const std::function<void()> &work);

/// Whether something can be read from standard input that nobody types.
bool inputIsPiped();

} // namespace norvane

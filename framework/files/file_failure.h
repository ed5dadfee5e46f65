#pragma once

#include "framework/text/failures.h"

#include <string>

namespace norvane {

/// What was to be done with a file.
enum class FileCall { reach, open, read, create, replace, write };

/// Something that could not be done with a file, and why. what() is a sentence that begins with the
/// file's name.
class FileFailure : public IOException {
  public:
    /// `error` is the system's.
    FileFailure(FileCall call, const std::string &file, int error);

    /// For what is not a regular file; `what` ends a sentence that begins with the file.
    FileFailure(FileCall call, const std::string &file, const std::string &what);

    FileCall call() const { return call_; }
    const std::string &file() const { return file_; }

    /// The system's error; 0 for what is not a regular file.
    int error() const { return error_; }

    /// The sentence that follows the name of the file.
    const std::string &reason() const { return reason_; }

  private:
    FileCall call_;
    std::string file_;
    int error_ = 0;
    std::string reason_;
};

} // namespace norvane

#include "framework/files/file_failure.h"

#include "framework/text/text.h"

#include <system_error>

namespace norvane {

namespace {

std::string whyNot(FileCall call, int error) {
    constexpr const char *kFailed[] = {"cannot be reached",  "cannot be opened",
                                       "cannot be read",     "cannot be created",
                                       "cannot be replaced", "cannot be written"};
    return std::string(kFailed[static_cast<int>(call)]) + ": " +
           std::generic_category().message(error) + ".";
}

} // namespace

FileFailure::FileFailure(FileCall call, const std::string &file, const std::string &what)
    : IOException(inQuotes(file) + " " + what), call_(call), file_(file), reason_(what) {}

FileFailure::FileFailure(FileCall call, const std::string &file, int error)
    : FileFailure(call, file, whyNot(call, error)) {
    error_ = error;
}

} // namespace norvane

#include "framework/files/disk.h"
#include "framework/files/file_failure.h"
#include "framework/files/system_calls.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace norvane::disk {

InputFile::InputFile(const std::string &path, Links links) : path_(path) {
    int error = findPlace(path, place_, links);
    if (error == 0 && !place_.isTaken())
        error = ENOENT;
    // Opening a FIFO or a device would already be an act: a writer may wait for it, a tape may
    // move.
    if (error == 0 && place_.isFile()) {
        handle_ = openPlace(place_, O_RDONLY | O_NONBLOCK);
        if (!handle_.isOpen() || systemCalls.fstat(handle_.get(), &place_.status) != 0)
            error = errno;
    }
    if (error != 0)
        throw FileFailure(FileCall::open, path, error);
    if (!place_.isFile())
        throw FileFailure(FileCall::open, path, whyNoFile(place_));
    left_ = size();
}

InputFile::InputFile(const std::string &path, Handle handle)
    : path_(path), handle_(std::move(handle)) {
    if (!handle_.isOpen() || systemCalls.fstat(handle_.get(), &place_.status) != 0)
        throw FileFailure(FileCall::open, path, errno);
    if (place_.isFolder())
        throw FileFailure(FileCall::open, path, whyNoFile(place_));
    const off_t start = lseek(handle_.get(), 0, SEEK_CUR);
    left_ = place_.isFile() && start >= 0
                ? static_cast<std::size_t>(std::max(place_.status.st_size - start, off_t{0}))
                : SIZE_MAX;
}

InputFile InputFile::named(const std::string &path) {
    return {path, Handle(systemCalls.openat(AT_FDCWD, path.c_str(), O_RDONLY, 0))};
}

InputFile InputFile::standardInput() {
    return {"standard input", Handle(systemCalls.duplicate(STDIN_FILENO))};
}

bool standardInputIsPiped() {
    struct stat status {};
    return systemCalls.fstat(STDIN_FILENO, &status) == 0 &&
           (S_ISFIFO(status.st_mode) || S_ISREG(status.st_mode));
}

bool InputFile::isAt(const Place &place) const {
    return place.holds(place_.status);
}

bool InputFile::readSome(Bytes &bytes) {
    const std::size_t most = std::min(bytes.restSize(), left_);
    const ssize_t count = most == 0 ? 0 : systemCalls.read(handle_.get(), bytes.rest(), most);
    if (count < 0)
        throw FileFailure(FileCall::read, path_, errno);
    bytes.fill(static_cast<std::size_t>(count));
    left_ -= static_cast<std::size_t>(count);
    return count > 0;
}

Bytes InputFile::readAll() {
    Bytes bytes(left_);
    while (readSome(bytes)) {
    }
    return bytes;
}

void InputFile::flush() {
    if (systemCalls.fsync(handle_.get()) != 0)
        throw FileFailure(FileCall::write, path_, errno);
    flushNames(place_, path_);
}

} // namespace norvane::disk

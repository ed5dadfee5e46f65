#include "framework/files/disk.h"
#include "framework/files/system_calls.h"
#include "framework/text/failures.h"
#include "framework/text/text.h"

#include <algorithm>

namespace norvane::disk {

InputFile::InputFile(const std::string &path, std::string &problem, Links links) : path_(path) {
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
    if (error == 0 && place_.isFile()) {
        left_ = size();
        return;
    }
    problem = inQuotes(path) +
              (error != 0 ? " cannot be opened: " + reason(error) + "." : whyNoFile(place_));
    handle_.close();
    hasFailed_ = error != 0 && error != ENOENT && error != ENOTDIR && error != EACCES &&
                 error != ENAMETOOLONG && error != ELOOP;
}

bool InputFile::isAt(const Place &place) const {
    return place.holds(place_.status);
}

bool InputFile::readSome(Bytes &bytes) {
    const std::size_t most = std::min(bytes.restSize(), left_);
    const ssize_t count = most == 0 ? 0 : systemCalls.read(handle_.get(), bytes.rest(), most);
    if (count < 0)
        throw IOException(inQuotes(path_) + " cannot be read: " + reason(errno) + ".");
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
        throw IOException(inQuotes(path_) + " cannot be written: " + reason(errno) + ".");
    flushNames(place_, path_);
}

} // namespace norvane::disk

#pragma once

#include "framework/files/handle.h"
#include "framework/files/links.h"

#include <string>
#include <sys/stat.h>

namespace norvane::disk {

/// Where a path leads: a name in a folder that is held open. A check and the use that follows
/// concern the same folder, whatever others do to the path in between.
struct Place {
    Handle folder;    // for calls that take a folder and a name, not to be read; any for the root
    std::string name; // "." when it is the folder itself
    struct stat status {}; // of what is there; its mode is 0 when nothing is

    bool isTaken() const { return status.st_mode != 0; }
    bool isFile() const { return S_ISREG(status.st_mode); }
    bool isFolder() const { return S_ISDIR(status.st_mode); }
    bool isLink() const { return S_ISLNK(status.st_mode); }
    /// Whether this is the file or folder of `other`.
    bool holds(const struct stat &other) const {
        return isTaken() && status.st_dev == other.st_dev && status.st_ino == other.st_ino;
    }
    mode_t permissions() const { return status.st_mode & 0777U; }
};

enum class LastLink { follow, keep };

/// Finds the place of an absolute path; gives 0, or the system's error, such as ENOENT when a
/// folder on the way is missing. With `keep`, a link that the path itself names is found and not
/// followed.
int findPlace(std::string path, Place &place, Links links = Links::trusted,
              LastLink lastLink = LastLink::follow);

/// Opens what is at `place`, without following a link; flags and mode are those of open(2).
/// Not open on failure, with the system's error in errno.
Handle openPlace(const Place &place, int flags, mode_t mode = 0);

/// Opens the folder of `place` to be read. Not open on failure, with the system's error in errno.
Handle openFolderOf(const Place &place);

/// What is at `place` and not a regular file, as the end of a sentence about it.
std::string whyNoFile(const Place &place);

} // namespace norvane::disk

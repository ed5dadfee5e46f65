#include "framework/files/place.h"

#include "framework/files/system_calls.h"

#include <algorithm>
#include <array>

namespace norvane::disk {

namespace {

// Opens without any effect on what is opened, be it a FIFO, a device or a link itself.
#ifdef __APPLE__
constexpr int kLook = O_RDONLY | O_NONBLOCK | O_SYMLINK;
#else
constexpr int kLook = O_PATH;
#endif

constexpr int kMostLinks = 40; // on one way, as the system itself has it

bool mayFollow(const struct stat &link, Links links) {
    return links == Links::all || link.st_uid == geteuid() || link.st_uid == 0;
}

/// Where an open link leads; empty on failure.
std::string targetOf(const Handle &link) {
    std::array<char, 4096> target{}; // the longest that systems have
    const ssize_t size = systemCalls.readOpenLink(link.get(), target.data(), target.size());
    return {target.data(), size > 0 ? static_cast<std::size_t>(size) : 0};
}

} // namespace

int findPlace(std::string path, Place &place, Links links, LastLink lastLink) {
    const std::size_t slash = path.rfind('/');
    place.folder = Handle(
        systemCalls.openWithoutLinks(path.substr(0, std::max<std::size_t>(slash, 1)).c_str()));
    if (place.folder.isOpen() && slash + 1 < path.size()) { // nearly always: most ways have no link
        place.name = path.substr(slash + 1);
        path.clear();
    } else {
        place.name = "/"; // whatever the folder
    }
    int followed = 0;
    for (;;) { // `path` is what follows the name
        const std::size_t next = path.find_first_not_of('/');
        const bool last = next == std::string::npos;
        place.status = {};
        Handle item = openPlace(place, kLook);
        if (!item.isOpen())
            return last && errno == ENOENT ? 0 : errno;
        if (systemCalls.fstat(item.get(), &place.status) != 0)
            return errno;
        if (place.isLink() && mayFollow(place.status, links) &&
            (!last || lastLink == LastLink::follow)) {
            const std::string target = targetOf(item);
            if (target.empty() || ++followed > kMostLinks)
                return target.empty() ? errno : ELOOP;
            path.insert(0, target + "/");
            place.name = target.front() == '/' ? "/" : ".";
            continue;
        }
        if (last)
            return 0;
        if (!place.isFolder())
            return ENOTDIR;
        place.folder = std::move(item);
        const std::size_t end = std::min(path.find('/', next), path.size());
        place.name = path.substr(next, end - next);
        path.erase(0, end);
    }
}

Handle openPlace(const Place &place, int flags, mode_t mode) {
    return Handle(
        systemCalls.openat(place.folder.get(), place.name.c_str(), flags | O_NOFOLLOW, mode));
}

Handle openFolderOf(const Place &place) {
    return Handle(systemCalls.openat(place.folder.get(), ".", O_RDONLY | O_DIRECTORY, 0));
}

std::string whyNoFile(const Place &place) {
    return place.isFolder() ? "is a folder."
           : place.isLink() ? "is a link that belongs to another user."
                            : "is not a regular file.";
}

} // namespace norvane::disk

#include "framework/files/disk.h"
#include "framework/files/system_calls.h"

#include <map>

namespace norvane::disk {

namespace {

/// A locked file, which goes with its lock.
struct LockFile {
    Place place;
    Handle handle;

    LockFile() = default;
    // Removed before it is unlocked: whoever locks it next sees that it is gone.
    ~LockFile() {
        if (handle.isOpen())
            systemCalls.unlinkat(place.folder.get(), place.name.c_str(), 0);
    }
    LockFile(const LockFile &) = delete;
    LockFile &operator=(const LockFile &) = delete;
};

/// Opens and locks the file `path`; nullopt when another program has it, nullptr when that cannot
/// be done.
std::optional<std::shared_ptr<LockFile>> lockFile(const std::string &path) {
    constexpr mode_t kForUserAlone = 0600; // nobody else can open it, and so hold it
    for (;;) {
        Place place;
        if (findPlace(path, place, Links::trusted, LastLink::keep) != 0)
            return nullptr;
        Handle handle = openPlace(place, O_RDWR | O_CREAT | O_NONBLOCK, kForUserAlone);
        if (!handle.isOpen())
            return nullptr;
        if (systemCalls.flock(handle.get(), LOCK_EX | LOCK_NB) != 0) {
            if (errno == EWOULDBLOCK)
                return std::nullopt;
            return nullptr;
        }
        struct stat locked {};
        if (systemCalls.fstat(handle.get(), &locked) != 0 ||
            findPlace(path, place, Links::trusted, LastLink::keep) != 0)
            return nullptr;
        if (!place.holds(locked)) // its last owner has removed it since it was opened
            continue;
        auto file = std::make_shared<LockFile>();
        file->place = std::move(place);
        file->handle = std::move(handle);
        return file;
    }
}

} // namespace

std::optional<FolderLock> lockFolder(const std::string &path) {
    static std::map<std::string, std::weak_ptr<LockFile>> held; // by this program
    Place folder;
    const std::string home = preferencesFolder();
    if (home.empty() || findPlace(path, folder) != 0 || !folder.isFolder())
        return nullptr;
    const std::string name = "com.bellwick.norvane." + std::to_string(folder.status.st_dev) + "-" +
                             std::to_string(folder.status.st_ino) + ".lock";
    if (const auto own = held[name].lock())
        return own;
    makeFolders(home);
    const auto file = lockFile(home + "/" + name);
    if (!file)
        return std::nullopt;
    held[name] = *file;
    return *file;
}

} // namespace norvane::disk

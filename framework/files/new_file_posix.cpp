#include "framework/files/disk.h"
#include "framework/files/system_calls.h"
#include "framework/text/failures.h"
#include "framework/text/text.h"

#include <csignal>
#include <random>
#include <set>

namespace norvane::disk {

namespace {

// The name, for a moment or while it is written, of a file that will take the place of another.
constexpr const char *kTemporaryPrefix = ".norvane-";
constexpr const char *kTemporarySuffix = ".part";

constexpr mode_t kForUserAlone = 0600;
constexpr mode_t kForAll = 0666;

[[maybe_unused]] constexpr const char *kOpenFiles = "/proc/self/fd/";

/// Removes the temporary files of writers that were killed beside `file`, which `path` names, when
/// it is first asked for a folder. A writer at work holds its file locked.
void removeLeftovers(const std::string &path, const Place &file) {
    static std::set<std::string> swept;
    if (!swept.insert(folderOf(path)).second)
        return;
    std::vector<std::string> names;
    readNames(openFolderOf(file), names);
    for (const std::string &name : names) {
        if (!name.starts_with(kTemporaryPrefix) || !name.ends_with(kTemporarySuffix))
            continue;
        const int folder = file.folder.get();
        const Handle leftover(
            systemCalls.openat(folder, name.c_str(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW, 0));
        if (leftover.isOpen() && systemCalls.flock(leftover.get(), LOCK_EX | LOCK_NB) == 0)
            systemCalls.unlinkat(folder, name.c_str(), 0);
    }
}

} // namespace

NewFile::NewFile(const std::string &path, Readers readers, std::string &problem, Links links)
    : path_(path) {
    if (!findTarget(problem, links))
        return;
    if (place_.isFile()) {
        if (systemCalls.faccessat(place_.folder.get(), place_.name.c_str(), W_OK,
                                  AT_EACCESS | AT_SYMLINK_NOFOLLOW) != 0) {
            problem = inQuotes(path_) + " cannot be replaced: " + reason(errno) + ".";
            return;
        }
        permissions_ = place_.permissions();
    }
    begin(permissions_ || readers == Readers::userAlone ? kForUserAlone : kForAll, problem);
}

NewFile::NewFile(const std::string &path, mode_t permissions, std::string &problem)
    : path_(path), permissions_(permissions) {
    if (findTarget(problem, Links::trusted))
        begin(kForUserAlone, problem);
}

NewFile::~NewFile() {
    if (!temporary_.empty())
        systemCalls.unlinkat(place_.folder.get(), temporary_.c_str(), 0);
}

bool NewFile::findTarget(std::string &problem, Links links) {
    const int error = findPlace(path_, place_, links);
    if (error != 0)
        problem = inQuotes(path_) + " cannot be created: " + reason(error) + ".";
    else if (place_.isTaken() && !place_.isFile() && !place_.isLink())
        problem = inQuotes(path_) + whyNoFile(place_);
    else
        return true;
    return false;
}

void NewFile::begin(mode_t mode, std::string &problem) {
    removeLeftovers(path_, place_);
    const int folder = place_.folder.get();
#ifdef O_TMPFILE
    if (systemCalls.faccessat(AT_FDCWD, kOpenFiles, X_OK, 0) == 0) // by which alone it gets a name
        handle_ = Handle(systemCalls.openat(folder, ".", O_TMPFILE | O_WRONLY, mode));
#endif
    if (!isOpen()) {
        nameTemporary();
        handle_ = Handle(
            systemCalls.openat(folder, temporary_.c_str(), O_WRONLY | O_CREAT | O_EXCL, mode));
    }
    if (isOpen()) {
        systemCalls.flock(handle_.get(), LOCK_EX | LOCK_NB); // see removeLeftovers
        return;
    }
    problem = inQuotes(path_) + " cannot be created: " + reason(errno) + ".";
    temporary_.clear();
}

void NewFile::nameTemporary() {
    std::random_device random;
    temporary_ =
        kTemporaryPrefix + std::to_string(random()) + std::to_string(random()) + kTemporarySuffix;
}

void NewFile::write(std::string_view bytes) {
    writeAll(handle_.get(), bytes, path_);
}

void NewFile::finish(Lasting lasting) {
    // Where the file system has no such bits, they stay as they are: fewer at most.
    if (permissions_)
        systemCalls.fchmod(handle_.get(), *permissions_);
    if (lasting == Lasting::yes && systemCalls.fsync(handle_.get()) != 0)
        fail(errno);
    takePlace();
    if (lasting == Lasting::yes)
        flushNames(place_, path_);
}

void NewFile::takePlace() {
    const int folder = place_.folder.get();
#ifdef O_TMPFILE
    if (temporary_.empty()) {
        const std::string self = kOpenFiles + std::to_string(handle_.get());
        const auto linkTo = [&](const std::string &name) {
            return systemCalls.linkat(AT_FDCWD, self.c_str(), folder, name.c_str(),
                                      AT_SYMLINK_FOLLOW) == 0;
        };
        if (linkTo(place_.name))
            return;
        if (isNew_)
            fail(errno);
        nameTemporary(); // only a file with a name can replace another
        if (!linkTo(temporary_))
            fail(errno);
    }
#endif
    if (isNew_) { // the temporary goes with this object
        if (systemCalls.linkat(folder, temporary_.c_str(), folder, place_.name.c_str(), 0) == 0)
            return;
        if (errno == EEXIST)
            fail(errno);
    } // else it has no links, so that all it can do is to rename
    if (systemCalls.renameat(folder, temporary_.c_str(), folder, place_.name.c_str()) != 0)
        fail(errno);
    temporary_.clear();
}

void NewFile::fail(int error) {
    throw IOException(inQuotes(path_) + " cannot be written: " + reason(error) + ".");
}

void flushNames(const Place &place, const std::string &what) {
    const Handle folder = openFolderOf(place);
    // Some file systems refuse the call, and some folders may not be read: no failure of ours.
    if (folder.isOpen() && systemCalls.fsync(folder.get()) != 0 && errno == EIO)
        throw IOException(inQuotes(what) + " cannot be written: " + reason(EIO) + ".");
}

void surviveSizeLimits() {
    std::signal(SIGXFSZ, SIG_IGN);
}

void writeAll(int handle, std::string_view bytes, const std::string &what) {
    while (!bytes.empty()) {
        const ssize_t count = systemCalls.write(handle, bytes.data(), bytes.size());
        if (count <= 0)
            throw IOException(inQuotes(what) + " cannot be written: " + reason(errno) + ".");
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

} // namespace norvane::disk

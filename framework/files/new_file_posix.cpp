#include "framework/files/disk.h"
#include "framework/files/file_failure.h"
#include "framework/files/system_calls.h"

#include <array>
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

constexpr const char *kOpenFiles = "/proc/self/fd/";

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

NewFile::NewFile(const std::string &path, Readers readers, Links links) : path_(path) {
    findTarget(links);
    if (place_.isFile()) {
        if (systemCalls.faccessat(place_.folder.get(), place_.name.c_str(), W_OK,
                                  AT_EACCESS | AT_SYMLINK_NOFOLLOW) != 0)
            throw FileFailure(FileCall::replace, path_, errno);
        permissions_ = place_.permissions();
    }
    begin(permissions_ || readers == Readers::userAlone ? kForUserAlone : kForAll);
}

NewFile::NewFile(const std::string &path, mode_t permissions)
    : path_(path), permissions_(permissions) {
    findTarget(Links::trusted);
    begin(kForUserAlone);
}

NewFile::~NewFile() {
    if (!temporary_.empty())
        systemCalls.unlinkat(place_.folder.get(), temporary_.c_str(), 0);
}

void NewFile::findTarget(Links links) {
    const int error = findPlace(path_, place_, links);
    if (error != 0)
        throw FileFailure(FileCall::create, path_, error);
    if (place_.isTaken() && !place_.isFile() && !place_.isLink())
        throw FileFailure(FileCall::create, path_, whyNoFile(place_));
}

void NewFile::begin(mode_t mode) {
    removeLeftovers(path_, place_);
#ifdef O_TMPFILE
    if (systemCalls.faccessat(AT_FDCWD, kOpenFiles, X_OK, 0) == 0) // by which alone it gets a name
        handle_ = Handle(systemCalls.openat(place_.folder.get(), ".", O_TMPFILE | O_WRONLY, mode));
#endif
    if (handle_.isOpen())
        systemCalls.flock(handle_.get(), LOCK_EX | LOCK_NB); // see removeLeftovers
    else if (!openTemporary(mode))
        throw FileFailure(FileCall::create, path_, errno);
}

bool NewFile::openTemporary(mode_t mode) {
    nameTemporary();
    handle_ = Handle(systemCalls.openat(place_.folder.get(), temporary_.c_str(),
                                        O_WRONLY | O_CREAT | O_EXCL, mode));
    if (!handle_.isOpen()) {
        temporary_.clear();
        return false;
    }
    systemCalls.flock(handle_.get(), LOCK_EX | LOCK_NB);
    return true;
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
    if (!temporary_.empty() || !linkTo(place_.name)) {
        if (temporary_.empty())
            giveName(lasting);
        isNew_ ? takeFreePlace() : takePlace();
    }
    if (lasting == Lasting::yes)
        flushNames(place_, path_);
}

std::string NewFile::openFile() const {
    return kOpenFiles + std::to_string(handle_.get());
}

bool NewFile::linkTo(const std::string &name) const {
    return systemCalls.linkat(AT_FDCWD, openFile().c_str(), place_.folder.get(), name.c_str(),
                              AT_SYMLINK_FOLLOW) == 0;
}

/// Gives a name to a file without one, since only that can replace another.
void NewFile::giveName(Lasting lasting) {
    if (isNew_ && errno == EEXIST)
        fail(EEXIST);
    nameTemporary();
    if (linkTo(temporary_))
        return;
    // Links are refused, so that it takes a copy.
    const Handle nameless(systemCalls.openat(AT_FDCWD, openFile().c_str(), O_RDONLY, 0));
    struct stat status {};
    if (!nameless.isOpen() || systemCalls.fstat(nameless.get(), &status) != 0 ||
        !openTemporary(kForUserAlone))
        fail(errno);
    std::array<char, std::size_t{1} << 16U> block; // NOLINT: filled by the next call
    ssize_t count = 0;
    while ((count = systemCalls.read(nameless.get(), block.data(), block.size())) > 0)
        write({block.data(), static_cast<std::size_t>(count)});
    systemCalls.fchmod(handle_.get(), status.st_mode & 0777U);
    if (count < 0 || (lasting == Lasting::yes && systemCalls.fsync(handle_.get()) != 0))
        fail(errno);
}

void NewFile::takePlace() {
    const int folder = place_.folder.get();
    if (systemCalls.renameat(folder, temporary_.c_str(), folder, place_.name.c_str()) != 0)
        fail(errno);
    temporary_.clear();
}

/// Takes the target's place unless something has it by now, in one of the ways of which each file
/// system knows at least one.
void NewFile::takeFreePlace() {
    const int folder = place_.folder.get();
    const char *const from = temporary_.c_str();
    const char *const to = place_.name.c_str();
    if (systemCalls.renameToNew(folder, from, folder, to) == 0) {
        temporary_.clear();
        return;
    }
    if (errno != EEXIST && systemCalls.linkat(folder, from, folder, to, 0) == 0)
        return; // the other name goes with this object
    const bool isTaken =
        errno == EEXIST ||
        !Handle(systemCalls.openat(folder, to, O_WRONLY | O_CREAT | O_EXCL, kForUserAlone))
             .isOpen();
    if (isTaken)
        fail(errno);
    if (systemCalls.renameat(folder, from, folder, to) != 0) {
        const int error = errno;
        systemCalls.unlinkat(folder, to, 0);
        fail(error);
    }
    temporary_.clear();
}

void NewFile::fail(int error) {
    throw FileFailure(FileCall::write, path_, error);
}

void flushNames(const Place &place, const std::string &what) {
    const Handle folder = openFolderOf(place);
    // Some file systems refuse the call, and some folders may not be read: no failure of ours.
    if (folder.isOpen() && systemCalls.fsync(folder.get()) != 0 && errno == EIO)
        throw FileFailure(FileCall::write, what, EIO);
}

void surviveSizeLimits() {
    std::signal(SIGXFSZ, SIG_IGN);
}

void writeAll(int handle, std::string_view bytes, const std::string &what) {
    while (!bytes.empty()) {
        const ssize_t count = systemCalls.write(handle, bytes.data(), bytes.size());
        if (count <= 0)
            throw FileFailure(FileCall::write, what, errno);
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

} // namespace norvane::disk

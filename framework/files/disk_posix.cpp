#include "framework/files/disk.h"

#include "framework/text/failures.h"
#include "framework/text/text.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <random>
#include <set>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>
#ifdef __APPLE__
#include <mach-o/dyld.h>
#endif

namespace norvane::disk {

namespace {

// The name, for a moment or while it is written, of a file that will take the place of another.
constexpr const char *kTemporaryPrefix = ".norvane-";
constexpr const char *kTemporarySuffix = ".part";

constexpr const char *kIsFolder = " is a folder.";
constexpr const char *kNotOrdinary = " is not a regular file.";

[[maybe_unused]] constexpr const char *kOpenFiles = "/proc/self/fd/";

std::string reason(int error) {
    return std::generic_category().message(error);
}

std::string folderOf(const std::string &path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "." : path.substr(0, std::max<std::size_t>(slash, 1));
}

/// Makes what happened to the names in a folder last through a power failure, as far as the file
/// system can: some refuse the call, and that is no failure of ours.
void syncFolder(const std::string &path) {
    const int folder = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder >= 0) {
        fsync(folder);
        close(folder);
    }
}

/// The file that a link leads to, so that a replacement leaves the link in its place.
std::string behindLinks(std::string path) {
    const std::unique_ptr<char, void (*)(void *)> real(realpath(path.c_str(), nullptr), std::free);
    return real == nullptr ? std::move(path) : std::string(real.get());
}

std::string environment(const char *name) {
    const char *value = std::getenv(name);
    return value == nullptr ? "" : value;
}

/// Removes the temporary files of writers that were killed, when it is first asked for a folder. A
/// writer at work holds its file locked.
void removeLeftovers(const std::string &folder) {
    static std::set<std::string> swept;
    if (!swept.insert(folder).second)
        return;
    for (const std::string &name : namesIn(folder)) {
        if (!name.starts_with(kTemporaryPrefix) || !name.ends_with(kTemporarySuffix))
            continue;
        const std::string path = std::string(folder).append("/").append(name);
        const int handle = open(path.c_str(), O_WRONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC);
        if (handle >= 0 && flock(handle, LOCK_EX | LOCK_NB) == 0)
            remove(path);
        if (handle >= 0)
            close(handle);
    }
}

} // namespace

Kind kindOf(const std::string &path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0)
        return Kind::missing;
    return S_ISREG(status.st_mode)   ? Kind::file
           : S_ISDIR(status.st_mode) ? Kind::folder
                                     : Kind::other;
}

std::vector<std::string> namesIn(const std::string &path) {
    std::vector<std::string> names;
    const std::unique_ptr<DIR, int (*)(DIR *)> folder(opendir(path.c_str()), closedir);
    while (folder != nullptr) {
        const dirent *entry = readdir(folder.get());
        if (entry == nullptr)
            break;
        const std::string_view name = static_cast<const char *>(entry->d_name);
        if (name != "." && name != "..")
            names.emplace_back(name);
    }
    std::sort(names.begin(), names.end());
    return names;
}

bool makeFolder(const std::string &path) {
    return mkdir(path.c_str(), 0777) == 0;
}

bool remove(const std::string &path) {
    return std::remove(path.c_str()) == 0;
}

std::string preferencesFolder() {
#ifdef __APPLE__
    const std::string home = environment("HOME");
    return home.empty() ? "" : home + "/Library/Preferences";
#else
    std::string configured = environment("XDG_CONFIG_HOME");
    if (configured.starts_with('/'))
        return configured;
    const std::string home = environment("HOME");
    return home.empty() ? "" : home + "/.config";
#endif
}

std::string programFolder() {
#ifdef __APPLE__
    std::string program(4096, '\0');
    auto size = static_cast<std::uint32_t>(program.size());
    if (_NSGetExecutablePath(program.data(), &size) != 0)
        return "";
    return folderOf(behindLinks(program.c_str()));
#else
    return folderOf(behindLinks("/proc/self/exe"));
#endif
}

InputFile::InputFile(const std::string &path, std::string &problem) : path_(path) {
    // Opening a FIFO or a device is already an act: a writer may wait for it, a tape may move.
    if (kindOf(path) == Kind::other) {
        problem = inQuotes(path) + kNotOrdinary;
        return;
    }
    const int handle = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    struct stat status {};
    if (handle < 0 || fstat(handle, &status) != 0) {
        problem = inQuotes(path) + " cannot be opened: " + reason(errno) + ".";
    } else if (!S_ISREG(status.st_mode)) {
        problem = inQuotes(path) + (S_ISDIR(status.st_mode) ? kIsFolder : kNotOrdinary);
    } else {
        handle_ = handle;
        size_ = static_cast<std::size_t>(status.st_size);
        return;
    }
    if (handle >= 0)
        close(handle);
}

InputFile::~InputFile() {
    if (isOpen())
        close(handle_);
}

bool InputFile::readSome(Bytes &bytes) {
    ssize_t count = 0;
    do {
        count = read(handle_, bytes.rest(), bytes.restSize());
    } while (count < 0 && errno == EINTR);
    if (count < 0)
        throw IOException(inQuotes(path_) + " cannot be read: " + reason(errno) + ".");
    bytes.fill(static_cast<std::size_t>(count));
    return count > 0;
}

Bytes InputFile::readAll() {
    constexpr std::size_t kLeastRest = 4096;
    Bytes bytes(size_ + kLeastRest); // the end shows in a read of nothing, which needs room too
    while (readSome(bytes)) {
        if (bytes.restSize() == 0) // it has grown since
            bytes.grow(2 * bytes.size());
    }
    return bytes;
}

NewFile::NewFile(std::string path, std::string &problem) : path_(behindLinks(std::move(path))) {
    const Kind kind = kindOf(path_);
    if (kind == Kind::folder || kind == Kind::other) {
        problem = inQuotes(path_) + (kind == Kind::folder ? kIsFolder : kNotOrdinary);
        return;
    }
    if (kind == Kind::file && access(path_.c_str(), W_OK) != 0) {
        problem = inQuotes(path_) + " cannot be replaced: " + reason(errno) + ".";
        return;
    }
    removeLeftovers(folderOf(path_));
#ifdef O_TMPFILE
    if (access(kOpenFiles, X_OK) == 0) // by which alone it can get its name
        handle_ = open(folderOf(path_).c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0666);
#endif
    if (!isOpen()) {
        nameTemporary();
        handle_ = open(temporary_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    }
    if (isOpen())
        flock(handle_, LOCK_EX | LOCK_NB); // see removeLeftovers
    else
        problem = inQuotes(path_) + " cannot be created: " + reason(errno) + ".";
}

NewFile::~NewFile() {
    if (isOpen()) {
        close(handle_);
        if (!temporary_.empty())
            remove(temporary_);
    }
}

void NewFile::nameTemporary() {
    std::random_device random;
    temporary_ = folderOf(path_) + "/" + kTemporaryPrefix + std::to_string(random()) +
                 std::to_string(random()) + kTemporarySuffix;
}

void NewFile::write(std::string_view bytes) {
    writeAll(handle_, bytes, path_);
}

void NewFile::commit() {
    if (fsync(handle_) != 0)
        fail(errno);
#ifdef O_TMPFILE
    if (temporary_.empty()) {
        const std::string self = kOpenFiles + std::to_string(handle_);
        if (linkat(AT_FDCWD, self.c_str(), AT_FDCWD, path_.c_str(), AT_SYMLINK_FOLLOW) == 0) {
            syncFolder(folderOf(path_));
            close(std::exchange(handle_, -1));
            return;
        }
        // Only a file with a name can replace another.
        nameTemporary();
        if (linkat(AT_FDCWD, self.c_str(), AT_FDCWD, temporary_.c_str(), AT_SYMLINK_FOLLOW) != 0)
            fail(errno);
    }
#endif
    if (rename(temporary_.c_str(), path_.c_str()) != 0)
        fail(errno);
    temporary_.clear();
    syncFolder(folderOf(path_));
    close(std::exchange(handle_, -1));
}

void NewFile::fail(int error) {
    throw IOException(inQuotes(path_) + " cannot be written: " + reason(error) + ".");
}

void surviveSizeLimits() {
    std::signal(SIGXFSZ, SIG_IGN);
}

void writeAll(int handle, std::string_view bytes, const std::string &what) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(handle, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            throw IOException(inQuotes(what) + " cannot be written: " + reason(errno) + ".");
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

} // namespace norvane::disk

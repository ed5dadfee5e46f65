#pragma once

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <type_traits>
#include <unistd.h>
#ifdef __linux__
#include <linux/openat2.h>
#include <sys/syscall.h>
#endif

namespace norvane::disk {

/// A call to the system, made again for as long as a signal interrupts it.
template <class Signature>
struct Call;
template <class Result, class... Parameters>
struct Call<Result(Parameters...)> {
    Result (*function)(Parameters...);

    Result operator()(Parameters... parameters) const {
        for (;;) {
            errno = 0; // the end of a listing leaves it as it is
            const Result result = function(parameters...);
            if (!isFailure(result) || errno != EINTR)
                return result;
        }
    }

    static bool isFailure(Result result) {
        if constexpr (std::is_pointer_v<Result>)
            return result == nullptr;
        else
            return result == -1;
    }
};

/// The calls by which files and folders are looked at, read and written, standard input and output
/// among them, each with the meaning and the errors that POSIX gives it. What the program does with
/// its users' files goes through these alone, so that a test can put calls that fail in their
/// place.
struct SystemCalls {
    Call<int(int, const char *, int, mode_t)> openat{
        [](int folder, const char *name, int flags, mode_t mode) {
            return ::openat(folder, name, flags | O_CLOEXEC | O_NOCTTY, mode);
        }};
    /// Opens a folder as a place for others of these calls, but only when no link is on the way;
    /// older systems cannot do that.
    Call<int(const char *)> openWithoutLinks{[](const char *path) {
#ifdef SYS_openat2
        open_how how{};
        how.flags = O_PATH | O_DIRECTORY | O_CLOEXEC;
        how.resolve = RESOLVE_NO_SYMLINKS;
        return static_cast<int>(syscall(SYS_openat2, AT_FDCWD, path, &how, sizeof how));
#else
        static_cast<void>(path);
        return errno = ENOSYS, -1;
#endif
    }};
    Call<int(int)> duplicate{[](int file) { return ::fcntl(file, F_DUPFD_CLOEXEC, 0); }};
    Call<int(int, struct stat *)> fstat{::fstat};
    Call<ssize_t(int, char *, std::size_t)> readOpenLink{
        [](int link, char *target, std::size_t room) {
#ifdef __APPLE__
            return ::freadlink(link, target, room);
#else
            return ::readlinkat(link, "", target, room);
#endif
        }};
    Call<int(int, const char *, int, int)> faccessat{::faccessat};
    Call<DIR *(int)> fdopendir{::fdopendir};
    Call<dirent *(DIR *)> readdir{::readdir};
    Call<int(int, const char *, mode_t)> mkdirat{::mkdirat};
    Call<int(int, const char *, int)> unlinkat{::unlinkat};
    Call<int(int, int)> flock{::flock};
    Call<ssize_t(int, void *, std::size_t)> read{::read};
    Call<ssize_t(int, const void *, std::size_t)> write{::write};
    Call<int(int, mode_t)> fchmod{::fchmod};
    Call<int(int)> fsync{::fsync};
    Call<int(int, const char *, int, const char *, int)> linkat{::linkat};
    Call<int(int, const char *, int, const char *)> renameat{::renameat};
    /// The same, but fails with EEXIST where something has the new name; not all systems and file
    /// systems can do that.
    Call<int(int, const char *, int, const char *)> renameToNew{
        [](int folder, const char *name, int newFolder, const char *newName) {
#ifdef SYS_renameat2
            constexpr unsigned kNoReplace = 1;
            return static_cast<int>(
                syscall(SYS_renameat2, folder, name, newFolder, newName, kNoReplace));
#elif defined(__APPLE__)
            return ::renameatx_np(folder, name, newFolder, newName, RENAME_EXCL);
#else
            return static_cast<void>(folder), static_cast<void>(name), static_cast<void>(newFolder),
                   static_cast<void>(newName), errno = ENOSYS, -1;
#endif
        }};
};

inline SystemCalls systemCalls;

} // namespace norvane::disk

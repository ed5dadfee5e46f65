#include "command/page_place.h"

#include "command/input.h"
#include "command/output.h"
#include "framework/files/disk.h"
#include "framework/text/text.h"
#include "transcript/layout.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace norvane {

namespace {

bool isPlain(char letter) {
    return (letter >= '0' && letter <= '9') || (letter >= 'A' && letter <= 'Z') ||
           (letter >= 'a' && letter <= 'z') || letter == '-' || letter == '_';
}

std::string hexDigits(std::uint64_t number, int count) {
    std::string digits;
    for (int shift = 4 * count - 4; shift >= 0; shift -= 4)
        digits += "0123456789ABCDEF"[number >> static_cast<unsigned>(shift) & 15U];
    return digits;
}

/// Whether it is a folder of this user, no link to one, and for nobody else from now on.
bool makePrivate(const std::string &folder) {
    struct stat status {};
    return lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
           status.st_uid == geteuid() && chmod(folder.c_str(), S_IRWXU) == 0;
}

void removeOldPages(const std::string &folder) {
    constexpr auto kKept = std::chrono::hours(7 * 24);
    const auto oldest = std::filesystem::file_time_type::clock::now() - kKept;
    for (const std::string &name : disk::namesIn(folder)) {
        std::error_code error;
        const std::string path = placeIn(folder, name);
        if (name.ends_with(".html") && std::filesystem::last_write_time(path, error) < oldest &&
            !error)
            std::filesystem::remove(path, error);
    }
}

std::string temporaryFolder() {
    std::error_code error;
    const std::filesystem::path all = std::filesystem::temp_directory_path(error);
    std::string folder = (error ? "/tmp" : all.string()) + "/norvane-XXXXXX";
    if (mkdtemp(folder.data()) == nullptr)
        throw Problem("a folder for the page cannot be created.");
    return folder;
}

/// The exit status of a process that ends within the time in which a desktop says that it cannot
/// open something; 0 when it is at work longer.
int earlyStatus(pid_t process) {
    using namespace std::chrono_literals;
    for (auto left = 3000ms; left > 0ms; left -= 20ms) {
        int status = 0;
        if (waitpid(process, &status, WNOHANG) != 0)
            return status;
        std::this_thread::sleep_for(20ms);
    }
    return 0;
}

} // namespace

std::string asAddress(const std::string &text) {
    std::string address;
    for (const char letter : text) {
        if (isPlain(letter) || letter == '/' || letter == '.')
            address += letter;
        else
            address += "%" + hexDigits(static_cast<unsigned char>(letter), 2);
    }
    return address;
}

std::string privatePageFolder() {
    const std::string cache = disk::cacheFolder();
    if (cache.empty())
        return temporaryFolder();
    std::string folder = cache + "/norvane/pages";
    disk::makeFolders(folder);
    if (!makePrivate(folder) || access(folder.c_str(), W_OK) != 0)
        return temporaryFolder();
    removeOldPages(folder);
    return folder;
}

std::string privatePageName(const std::string &path) {
    constexpr std::size_t kLongest = 100;
    std::uint64_t hash = 0xcbf29ce484222325; // FNV-1a
    for (const char letter : path)
        hash = (hash ^ static_cast<unsigned char>(letter)) * 0x100000001b3;
    std::string name = baseNameOf(path.substr(path.rfind('/') + 1)).substr(0, kLongest);
    for (char &letter : name)
        letter = isPlain(letter) ? letter : '_';
    return name + "-" + hexDigits(hash, 16) + ".html";
}

void openByDesktop(const std::string &path) {
#ifdef __APPLE__
    std::string opener = "open";
#else
    std::string opener = "xdg-open";
#endif
    std::string address = "file://" + asAddress(path);
    const std::array<char *, 3> arguments = {opener.data(), address.data(), nullptr};
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        posix_spawn_file_actions_addopen(&files, stream, "/dev/null", O_RDWR, 0);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
    pid_t process = 0;
    const int error =
        posix_spawnp(&process, opener.c_str(), &files, &attributes, arguments.data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&files);
    if (error != 0 || earlyStatus(process) != 0)
        throw Problem("the desktop cannot open its page.",
                      "Open it in a browser: " + printable(path));
}

} // namespace norvane

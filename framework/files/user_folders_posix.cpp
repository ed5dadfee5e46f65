#include "framework/files/disk.h"

#include <cstdlib>
#include <memory>
#ifdef __APPLE__
#include <cstdint>
#include <mach-o/dyld.h>
#endif

namespace norvane::disk {

namespace {

/// The path that a variable of the environment holds; empty when it is no full one, so that what it
/// means does not hang on the folder in which the program was started.
std::string pathFrom(const char *variable) {
    const char *value = std::getenv(variable);
    return value == nullptr || *value != '/' ? "" : value;
}

/// The folder of `name` in the user's home; empty when there is no home, for none is made.
std::string folderInHome(const char *name) {
    const std::string home = pathFrom("HOME");
    return home.empty() || kindOf(home, Kind::missing) != Kind::folder ? "" : home + name;
}

/// The folder of `variable`; without one, `name` in the user's home.
[[maybe_unused]] std::string configuredFolder(const char *variable, const char *name) {
    const std::string configured = pathFrom(variable);
    return configured.empty() ? folderInHome(name) : configured;
}

} // namespace

std::string preferencesFolder() {
#ifdef __APPLE__
    return folderInHome("/Library/Preferences");
#else
    return configuredFolder("XDG_CONFIG_HOME", "/.config");
#endif
}

std::string cacheFolder() {
#ifdef __APPLE__
    return folderInHome("/Library/Caches");
#else
    return configuredFolder("XDG_CACHE_HOME", "/.cache");
#endif
}

std::string programFolder() {
#ifdef __APPLE__
    std::string program(4096, '\0');
    auto size = static_cast<std::uint32_t>(program.size());
    if (_NSGetExecutablePath(program.data(), &size) != 0)
        return "";
#else
    const std::string program = "/proc/self/exe";
#endif
    const std::unique_ptr<char, void (*)(void *)> real(realpath(program.c_str(), nullptr),
                                                       std::free);
    return real == nullptr ? "" : folderOf(real.get());
}

} // namespace norvane::disk

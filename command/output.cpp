#include "command/output.h"

#include "command/input.h"
#include "framework/files/file_failure.h"
#include "framework/text/text.h"

#include <cerrno>
#include <csignal>
#include <set>

namespace norvane {

namespace {

/// Defers signals that end the program while it exists, so that no incomplete file is left.
class SignalsWait {
  public:
    SignalsWait() {
        sigset_t signals;
        sigemptyset(&signals);
        for (const int signal : {SIGTERM, SIGINT, SIGHUP})
            sigaddset(&signals, signal);
        sigprocmask(SIG_BLOCK, &signals, &before_);
    }
    ~SignalsWait() { sigprocmask(SIG_SETMASK, &before_, nullptr); }
    SignalsWait(const SignalsWait &) = delete;
    SignalsWait &operator=(const SignalsWait &) = delete;

  private:
    sigset_t before_{};
};

} // namespace

std::string placeIn(const std::string &folder, const std::string &name) {
    return folder + (folder.ends_with('/') ? "" : "/") + name;
}

namespace {

std::set<std::string> writtenPaths; // of what is not for the user's own browser alone

Problem existsAlready(const std::string &path) {
    if (writtenPaths.contains(absolutePath(path)))
        return Problem(inQuotes(path) + " has just been written for a file of the same name.",
                       "Use another folder for one of them.");
    return Problem(inQuotes(path) + " already exists: replace it with --force.");
}

} // namespace

void requireFree(const std::string &path, Links links) {
    if (disk::kindOf(absolutePath(path), links) != disk::Kind::missing)
        throw existsAlready(path);
}

void writeFile(const std::string &path, std::span<const std::string_view> parts,
               const disk::InputFile *input, bool force, disk::Readers readers, Links links) {
    const SignalsWait wait;
    disk::NewFile file(absolutePath(path), readers, links);
    if (input != nullptr && file.replaces(*input))
        throw Problem(inQuotes(path) + " is the input itself and cannot be replaced.");
    if (writtenPaths.contains(absolutePath(path)))
        throw existsAlready(path);
    if (!force)
        file.mustBeNew();
    for (const std::string_view part : parts)
        file.write(part);
    try {
        file.commit();
    } catch (const FileFailure &failure) {
        if (failure.error() == EEXIST)
            throw existsAlready(path);
        throw;
    }
    if (readers == disk::Readers::byUmask)
        writtenPaths.insert(absolutePath(path));
}

} // namespace norvane

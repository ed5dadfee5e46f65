#include "command/output.h"

#include "command/input.h"
#include "framework/text/text.h"

#include <csignal>

namespace norvane {

namespace {

/// While one of these stands, a signal that ends the program waits, so that no half-made file stays
/// behind.
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

void writeFile(const std::string &path, std::span<const std::string_view> parts,
               const disk::InputFile *input, bool force, disk::Readers readers) {
    const std::string absolute = absolutePath(path);
    if (!force && disk::kindOf(absolute) != disk::Kind::missing)
        throw Problem{inQuotes(path) + " exists already; --force replaces it."};
    const SignalsWait wait;
    std::string problem;
    disk::NewFile file(absolute, readers, problem);
    if (!file.isOpen())
        throw Problem{problem};
    if (input != nullptr && file.replaces(*input))
        throw Problem{inQuotes(path) + " is the input itself, which stays as it is."};
    if (!force)
        file.mustBeNew();
    for (const std::string_view part : parts)
        file.write(part);
    file.commit();
}

} // namespace norvane

#include "command/transcribe.h"

#include "command/input.h"
#include "explain/checks/film_transcript.h"
#include "framework/files/disk.h"
#include "framework/text/text.h"

#include <csignal>
#include <memory>
#include <sys/mman.h>
#include <unistd.h>

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

/// An empty text with room for `bytes` bytes, which costs nothing where it is not used. In large
/// pages where the system has some: to hand out and clear small ones one by one took a tenth of the
/// time of a file of 100 MB.
std::string roomFor(std::size_t bytes) {
    std::string room;
    room.reserve(bytes);
#ifdef MADV_HUGEPAGE
    constexpr std::size_t kLargePage = std::size_t{2} << 20U;
    void *start = room.data();
    std::size_t size = room.capacity();
    if (std::align(kLargePage, kLargePage, start, size) != nullptr)
        madvise(start, size - size % kLargePage, MADV_HUGEPAGE); // a wish, which may fail
#endif
    return room;
}

std::string bodyOf(Input &input, const Options &options) {
    FilmTranscript transcript(options.form, options.clock, input.beginning(),
                              roomFor(input.size()));
    input.nextLine(); // the header
    for (auto kept = input.nextLine(); !kept.empty(); kept = input.nextLine())
        transcript.add(kept, input.lineNumber());
    return transcript.take();
}

void writeTo(const std::string &path, const TranscriptPieces &pieces, const disk::InputFile *input,
             bool force) {
    const std::string absolute = absolutePath(path);
    if (!force && disk::kindOf(absolute) != disk::Kind::missing)
        throw Problem{inQuotes(path) + " exists already; --force replaces it."};
    const SignalsWait wait;
    std::string problem;
    disk::NewFile file(absolute, disk::Readers::byUmask, problem);
    if (!file.isOpen())
        throw Problem{problem};
    if (input != nullptr && file.replaces(*input))
        throw Problem{inQuotes(path) + " is the input itself, which stays as it is."};
    if (!force)
        file.mustBeNew();
    for (const std::string_view piece : pieces)
        file.write(piece);
    file.commit();
}

} // namespace

void transcribe(const std::string &path, const Options &options) {
    Input input(path);
    const std::string body = bodyOf(input, options);
    const std::string baseName = baseNameOf(input.name());
    const std::string heading = headingOf(baseName);
    const TranscriptPieces pieces = piecesOf(heading, body);
    if (options.outputFolder.empty()) {
        for (const std::string_view piece : pieces)
            disk::writeAll(STDOUT_FILENO, piece, "standard output");
        return;
    }
    const std::string separator = options.outputFolder.ends_with('/') ? "" : "/";
    writeTo(options.outputFolder + separator + baseName + ".txt", pieces, input.file(),
            options.force);
}

} // namespace norvane

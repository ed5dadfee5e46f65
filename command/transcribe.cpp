#include "command/transcribe.h"

#include "command/input.h"
#include "command/output.h"
#include "explain/checks/film_transcript.h"
#include "framework/files/disk.h"
#include "framework/text/text.h"

#include <memory>
#include <span>
#include <sys/mman.h>
#include <unistd.h>

namespace norvane {

namespace {

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
                              roomFor(input.file().size()));
    input.nextLine(); // the header
    for (auto kept = input.nextLine(); !kept.empty(); kept = input.nextLine())
        transcript.add(kept, input.lineNumber());
    return transcript.take();
}

} // namespace

void transcribe(const std::string &path, const Options &options) {
    Input input(path, options);
    const std::string baseName = baseNameOf(input.name());
    const std::string heading = headingOf(baseName);
    const bool isNamed = !options.outputFile.empty();
    const std::string target = isNamed ? options.outputFile
                               : options.outputFolder.empty()
                                   ? ""
                                   : placeIn(options.outputFolder, baseName + ".txt");
    const Links links = isNamed ? Links::all : Links::trusted; // not what lies in the folder
    if (!target.empty() && !options.force)
        requireFree(target, links);

    const std::string body = bodyOf(input, options);
    const TranscriptPieces whole = piecesOf(heading, body);
    constexpr std::size_t kHeadingAndItsEnds = 3;
    const auto pieces = std::span(whole).subspan(options.heading ? 0 : kHeadingAndItsEnds);
    if (!target.empty()) {
        writeFile(target, pieces, &input.file(), options.force, disk::Readers::byUmask, links);
        return;
    }
    for (const std::string_view piece : pieces)
        disk::writeAll(STDOUT_FILENO, piece, "standard output");
}

} // namespace norvane

#include "explain/checks/film_transcript.h"

#include "decode/caption.h"
#include "explain/checks/refusal_help.h"
#include "transcript/clean_up.h"

namespace norvane {

FilmTranscript::FilmTranscript(Form form, Clock clock, std::string_view beginning, std::string room)
    : body_(form, std::move(room)), clock_(clock), foreign_(foreignFormat(beginning)) {}

void FilmTranscript::add(std::string_view line, std::size_t number) {
    const auto parts = takeApart(line);
    if (const Refusal *refusal = std::get_if<Refusal>(&parts))
        throw Problem{std::string(messageOf(*refusal)),
                      foreign_.empty() ? refusalHelp(line) : foreign_, number};
    const DataLine &dataLine = std::get<DataLine>(parts);
    try {
        std::string timecode = startTime(dataLine, clock_);
        caption_.clear();
        appendCaption(caption_, dataLine.hexText);
        cleanEntry(caption_);
        correctComma(timecode);
        body_.add(timecode, caption_);
    } catch (const OutOfBoundsException &failure) {
        throw Problem{failure.what(), entryHelp(dataLine, clock_), number};
    }
}

void requireSccName(std::string_view name, std::string_view otherWay) {
    if (!isSccName(name)) {
        throw Problem{std::string(kNotSccMessage),
                      "If it is an SCC file, rename it to end in .scc, or " +
                          std::string(otherWay) + "."};
    }
}

} // namespace norvane

#include "command/transcribe.h"

#include "explain/refusal_help.h"
#include "framework/files/disk.h"
#include "framework/text/text.h"

#include <csignal>
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

std::string bodyOf(std::string_view text, const Options &options) {
    TextArray timecodes;
    TextArray captions;
    const std::vector<std::string_view> lines = keptLines(text);
    // Room ahead costs nothing where it is not used.
    captions.reserve(lines.size(), text.size() / 2);
    timecodes.reserve(lines.size(), text.size() / 8);
    for (std::size_t i = 1; i < lines.size(); ++i) {
        const auto line = takeApart(lines[i]);
        if (const Refusal *refusal = std::get_if<Refusal>(&line))
            throw Problem{std::string(messageOf(*refusal)), refusalHelp(text, lines[i]),
                          lineNumber(text, lines[i])};
        try {
            appendEntry(std::get<DataLine>(line), options.clock, timecodes, captions);
        } catch (const OutOfBoundsException &failure) {
            throw Problem{failure.what(), entryHelp(std::get<DataLine>(line), options.clock),
                          lineNumber(text, lines[i])};
        }
    }
    return composeTranscript(options.form, captions, timecodes);
}

void writeTo(const std::string &path, const std::string &heading, const std::string &body,
             bool force) {
    const std::string absolute = absolutePath(path);
    if (!force && disk::kindOf(absolute) != disk::Kind::missing)
        throw Problem{inQuotes(path) + " exists already; --force replaces it."};
    const SignalsWait wait;
    std::string problem;
    auto file = std::make_unique<disk::NewFile>(absolute, disk::Readers::byUmask, problem);
    if (!file->isOpen())
        throw Problem{problem};
    TextOutputStream stream(std::move(file));
    stream.WriteLine(heading);
    stream.WriteLine("");
    stream.WriteLine(body);
    stream.Close();
}

} // namespace

void transcribe(const Input &input, const Options &options) {
    const std::string body = bodyOf(input.text.view(), options);
    const std::string baseName = baseNameOf(input.name);
    const std::string heading = headingOf(baseName);
    if (options.outputFolder.empty()) {
        for (const std::string_view text :
             {std::string_view(heading), EndOfLine, EndOfLine, std::string_view(body), EndOfLine})
            disk::writeAll(STDOUT_FILENO, text, "standard output");
        return;
    }
    const std::string separator = options.outputFolder.ends_with('/') ? "" : "/";
    writeTo(options.outputFolder + separator + baseName + ".txt", heading, body, options.force);
}

} // namespace norvane

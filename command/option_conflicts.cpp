#include "command/options.h"

#include <array>

namespace norvane {

namespace {

constexpr unsigned bitOf(Task task) {
    return 1U << static_cast<unsigned>(task);
}

/// Options, whether a call has one of them, and the tasks for which it may.
struct Restriction {
    std::string_view names;
    bool (*isUsed)(const Options &);
    unsigned tasks; // bits
    std::string_view tasksNamed;
};

constexpr unsigned kTranscribe = bitOf(Task::transcribe);
constexpr unsigned kExplain = bitOf(Task::explain);
constexpr unsigned kCheck = bitOf(Task::check);
constexpr unsigned kPage = bitOf(Task::page);

bool picksLines(const Options &options) {
    const LineChoice &choice = options.choice;
    return !choice.text.empty() || !choice.time.empty() || choice.advised || options.screen;
}

constexpr auto kRestrictions = std::to_array<Restriction>({
    {"--without", [](const Options &o) { return !o.rules.wanted.all(); }, kCheck, "with --check"},
    {"--each", [](const Options &o) { return o.rules.told == Findings::Told::each; }, kCheck,
     "with --check"},
    {"--find, --at, --advised and --screen", picksLines, kExplain, "with --explain"},
    {"--summary", [](const Options &o) { return o.summary; }, kCheck, "with --check"},
    {"--limit", [](const Options &o) { return o.rules.limits.isAny(); }, kCheck, "with --check"},
    {"--json", [](const Options &o) { return o.json; }, kExplain | kCheck,
     "with --explain or --check"},
    {"-o and --no-heading", [](const Options &o) { return !o.outputFile.empty() || !o.heading; },
     kTranscribe, "for transcripts"},
    {"--output-dir and --force",
     [](const Options &o) { return !o.outputFolder.empty() || o.force; }, kTranscribe | kPage,
     "for transcripts and pages"},
    {"--open", [](const Options &o) { return o.open; }, kPage, "with --page"},
});

} // namespace

std::string conflictIn(const Options &options) {
    if (options.files.empty())
        return "no file given";
    for (const Restriction &one : kRestrictions) {
        if (one.isUsed(options) && (one.tasks & bitOf(options.task)) == 0)
            return std::string(one.names).append(" can be used only ").append(one.tasksNamed);
    }
    const bool isOfMany = options.files.size() > 1;
    const bool toFolder = !options.outputFolder.empty();
    if (options.task == Task::page && isOfMany && !options.open && !toFolder)
        return "--page of several files needs --output-dir or --open";
    if (!options.outputFile.empty() && toFolder)
        return "-o and --output-dir cannot be combined";
    if (!options.outputFile.empty() && isOfMany)
        return "-o is for one file: use --output-dir for several";
    return "";
}

} // namespace norvane

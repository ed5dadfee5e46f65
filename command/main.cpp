#include "command/input.h"
#include "command/option_file.h"
#include "command/options.h"
#include "command/report_files.h"
#include "command/transcribe.h"
#include "framework/files/disk.h"
#include "framework/text/text.h"

#include <cstdio>

namespace norvane {
namespace {

/// Whether all was well with a file of the command line.
bool doTask(const std::string &argument, const Options &options) {
    std::string shown = shownName(argument);
    bool isClean = true;
    const bool isDone = doAndTell(shown, [&] {
        const Place place = options.task == Task::explain ? placeOf(argument) : Place{argument};
        shown = shownName(place.path);
        if (options.task == Task::check)
            isClean = checkFile(place.path, options);
        else if (options.task == Task::explain)
            explainFile(place, options);
        else
            transcribe(place.path, options);
    });
    return isDone && isClean;
}

bool makeOutputFolder(const std::string &path) {
    try {
        const std::string folder = absolutePath(path);
        disk::makeFolders(folder);
        if (disk::kindOf(folder, disk::Kind::other) == disk::Kind::folder)
            return true;
        tell(printable(path), {"is not a folder and cannot be made one."});
    } catch (const Problem &problem) {
        tell(printable(path), problem);
    }
    return false;
}

int run(const Options &options) {
    if (!options.outputFolder.empty() && !makeOutputFolder(options.outputFolder))
        return 1;
    if (options.summary && !options.json &&
        !doAndTell("norvane-transcript", [] { printSummaryHead(); }))
        return 1;
    bool allWell = true;
    for (const std::string &file : options.files)
        allWell = doTask(file, options) && allWell;
    return allWell ? 0 : 1;
}

/// The options that the program was called with, those in files among them. Wrong usage is told.
Options optionsOf(int count, char **arguments) {
    Options options;
    options.exitStatus = 2;
    doAndTell("norvane-transcript", [&] {
        std::vector<std::string> all = withOptionFiles(count, arguments);
        std::vector<char *> pointers;
        for (std::string &argument : all)
            pointers.push_back(argument.data());
        pointers.push_back(nullptr); // as the system has it
        options = readOptions(static_cast<int>(all.size()), pointers.data(), inputIsPiped());
    });
    return options;
}

/// Prints what the options answer by themselves.
int answer(const Options &options) {
    std::FILE *const out = options.exitStatus == 0 ? stdout : stderr;
    if (std::fputs(options.answer.c_str(), out) >= 0 && std::fflush(out) == 0)
        return options.exitStatus;
    std::perror("norvane-transcript: standard output");
    return 1;
}

} // namespace
} // namespace norvane

int main(int argc, char **argv) {
    norvane::disk::surviveSizeLimits();
    const norvane::Options options = norvane::optionsOf(argc, argv);
    if (!options.answer.empty())
        return norvane::answer(options);
    return options.files.empty() ? options.exitStatus : norvane::run(options);
}

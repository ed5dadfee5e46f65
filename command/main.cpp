#include "command/input.h"
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
    bool allWell = true;
    for (const std::string &file : options.files)
        allWell = doTask(file, options) && allWell;
    return allWell ? 0 : 1;
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
    const norvane::Options options = norvane::readOptions(argc, argv, norvane::inputIsPiped());
    return options.answer.empty() ? norvane::run(options) : norvane::answer(options);
}

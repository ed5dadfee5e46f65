#include "command/input.h"
#include "command/option_file.h"
#include "command/options.h"
#include "command/page.h"
#include "command/report_files.h"
#include "command/transcribe.h"
#include "framework/files/disk.h"
#include "framework/text/text.h"

#include <algorithm>
#include <cstdio>
#include <exception>

namespace norvane {
namespace {

constexpr int kFailed = 1;
constexpr int kTrouble = 2; // of a check, which has 1 for findings

/// Does what is asked for with a file of the command line; gives an exit status.
int doTask(const std::string &argument, const Options &options) {
    std::string shown = shownName(argument, options);
    bool isClean = true;
    const auto work = [&] {
        const Place place = options.task == Task::explain ? placeOf(argument) : Place{argument};
        shown = shownName(place.path, options);
        if (options.task == Task::check)
            isClean = checkFile(place.path, options);
        else if (options.task == Task::explain)
            explainFile(place, options);
        else
            transcribe(place.path, options);
    };
    if (!doAndTell(shown, work, options.json))
        return options.task == Task::transcribe ? kFailed : kTrouble;
    return isClean ? 0 : kFailed;
}

void makeOutputFolder(const std::string &path) {
    const std::string folder = absolutePath(path);
    disk::makeFolders(folder);
    if (disk::kindOf(folder, disk::Kind::other) != disk::Kind::folder)
        throw Problem("is not a folder.");
}

int run(const Options &options) {
    if (!options.outputFolder.empty() && !doAndTell(printable(options.outputFolder), [&] {
            makeOutputFolder(options.outputFolder);
        }))
        return kFailed;
    if (options.summary && !options.json && !doAndTell("", [] { printSummaryHead(); }))
        return kTrouble;
    if (options.task == Task::page)
        return makePages(options) ? 0 : kFailed;
    int status = 0;
    for (const std::string &file : options.files)
        status = std::max(status, doTask(file, options));
    return status;
}

/// The options of the command line and of option files. Reports wrong usage.
Options optionsOf(int count, char **arguments) {
    Options options;
    options.exitStatus = 2;
    doAndTell("", [&] {
        std::vector<std::string> all = withOptionFiles(count, arguments);
        std::vector<char *> pointers;
        pointers.reserve(all.size() + 1);
        for (std::string &argument : all)
            pointers.push_back(argument.data());
        pointers.push_back(nullptr); // as the system has it
        options = readOptions(static_cast<int>(all.size()), pointers.data(),
                              disk::standardInputIsPiped());
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
    using namespace norvane;
    disk::surviveSizeLimits();
    try {
        const Options options = optionsOf(argc, argv);
        if (!options.answer.empty())
            return answer(options);
        return options.files.empty() ? options.exitStatus : run(options);
    } catch (const std::exception &failure) { // while a failure was reported
        std::fprintf(stderr, "norvane-transcript: %s\n", failure.what());
        return kFailed;
    }
}

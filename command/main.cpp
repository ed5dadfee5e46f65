#include "command/command_desktop.h"
#include "command/options.h"
#include "framework/windows/guard.h"
#include "shell/window1.h"

#include <cstdio>
#include <filesystem>
#include <system_error>

namespace norvane {
namespace {

/// The user's path made absolute; "." and ".." stay. Throws IOException when it cannot be.
std::string absolutePath(const std::string &path) {
    std::error_code error;
    std::string absolute = std::filesystem::absolute(path, error).string();
    if (path.empty() || error)
        throw IOException(inQuotes(path) + " cannot be found.");
    return absolute;
}

void choose(Window1 &window, const Options &options) {
    window.TimecodeBox.Value = options.form == "timecode";
    window.ParagraphBox.Value = options.form == "paragraph";
    if (options.form == "line") {
        window.LineBox.Value = true;
        window.TimecodeBox.Value = false;
    }
    window.RadioButton1.Value = options.clock == "unbuffered";
    window.RadioButton2.Value = options.clock == "scc";
}

/// Where the transcript of `file` goes: a file of the output folder, or standard output.
Ref<FolderItem> target(const std::string &file, const Options &options) {
    if (options.outputFolder.empty())
        return standardOutput();
    const std::string name = std::filesystem::path(file).filename().string();
    const std::string path = (std::filesystem::path(absolutePath(options.outputFolder)) /
                              (name.substr(0, name.find('.')) + ".txt"))
                                 .string();
    Ref<FolderItem> item = GetFolderItem(path, 0);
    if (item->Exists() && !options.force)
        throw IOException(inQuotes(path) + " exists already; --force replaces it.");
    return item;
}

/// Decodes one file in a window of its own, so that nothing passes to the next. False when it
/// failed.
bool transcribe(const std::string &file, const Options &options) {
    CommandDesktop desktop(file);
    guarded([&] {
        const std::string path = absolutePath(file);
        std::string problem;
        if (!disk::InputFile(path, problem).isOpen())
            throw IOException(problem);
        class Window1 window;
        choose(window, options);
        desktop.followProgress(window.ProgressBar1);
        desktop.answerFile(GetFolderItem(path, 0));
        desktop.answerSave(target(path, options));
        window.importSCC();
    });
    return desktop.succeeded();
}

int run(const Options &options) {
    if (!options.outputFolder.empty()) {
        std::error_code error;
        std::filesystem::create_directories(options.outputFolder, error);
        if (error) {
            printError(options.outputFolder + ": cannot be made: " + error.message() + ".\n");
            return 1;
        }
    }
    bool allWell = true;
    for (const std::string &file : options.files)
        allWell = transcribe(file, options) && allWell;
    return allWell ? 0 : 1;
}

} // namespace
} // namespace norvane

int main(int argc, char **argv) {
    norvane::disk::surviveSizeLimits();
    const norvane::Options options = norvane::readOptions({argv + 1, argv + argc});
    if (!options.answer.empty()) {
        const bool said =
            std::fputs(options.answer.c_str(), options.exitStatus == 0 ? stdout : stderr) >= 0;
        return said && std::fflush(stdout) == 0 ? options.exitStatus : 1;
    }
    return norvane::run(options);
}

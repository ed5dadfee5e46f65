#include "command/option_file.h"

#include "command/input.h"
#include "framework/files/file_failure.h"
#include "framework/text/line_reader.h"
#include "framework/text/text.h"

namespace norvane {

namespace {

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view kBlanks = " \t";
    const std::size_t first = text.find_first_not_of(kBlanks);
    return first == std::string_view::npos
               ? ""
               : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

Bytes contentOf(const std::string &path) {
    try {
        return disk::InputFile(absolutePath(path), Links::all).readAll();
    } catch (const FileFailure &failure) {
        throw Problem("@" + printable(path) + " " + failure.reason());
    }
}

void appendOptions(const std::string &path, std::vector<std::string> &arguments) {
    const Bytes bytes = contentOf(path);
    LineReader lines(bytes.view());
    for (auto line = lines.nextNotEmpty(); !line.empty(); line = lines.nextNotEmpty()) {
        line = trimmed(line);
        if (line.empty() || line.starts_with('#'))
            continue;
        const std::size_t blank = line.find_first_of(" \t");
        arguments.emplace_back(line.substr(0, blank));
        if (blank != std::string_view::npos)
            arguments.emplace_back(trimmed(line.substr(blank)));
    }
}

} // namespace

std::vector<std::string> withOptionFiles(int count, char **arguments) {
    std::vector<std::string> all;
    bool isOption = true;
    for (int i = 0; i < count; ++i) {
        const std::string argument = arguments[i];
        isOption = isOption && argument != "--";
        if (i > 0 && isOption && argument.starts_with('@'))
            appendOptions(argument.substr(1), all);
        else
            all.push_back(argument);
    }
    return all;
}

} // namespace norvane

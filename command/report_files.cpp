#include "command/report_files.h"

#include "command/input.h"
#include "explain/checks/check.h"
#include "explain/reports/report.h"
#include "framework/files/disk.h"
#include "framework/text/text.h"

#include <charconv>
#include <unistd.h>

namespace norvane {

namespace {

void print(const std::string &text) {
    disk::writeAll(STDOUT_FILENO, text, "standard output");
}

} // namespace

Place placeOf(const std::string &argument) {
    const std::size_t colon = argument.rfind(':');
    if (colon == std::string::npos ||
        disk::kindOf(absolutePath(argument), disk::Kind::other) != disk::Kind::missing)
        return {argument};
    Place place{argument.substr(0, colon)};
    const char *const end = argument.data() + argument.size();
    const auto [rest, error] = std::from_chars(argument.data() + colon + 1, end, place.line);
    return error == std::errc() && rest == end && place.line > 0 ? place : Place{argument};
}

void explainFile(const Place &place, const Options &options) {
    Input input(place.path);
    const std::string_view text = input.all();
    const std::string shown = shownName(place.path);
    FindingKinds ofFile = options.kinds;
    ofFile.reset(static_cast<std::size_t>(FindingKind::digits)); // they are the line's own
    ofFile.reset(static_cast<std::size_t>(FindingKind::altered));
    const std::vector<Finding> findings = check(text, ofFile);
    bool isFirst = true;
    const auto tellOf = [&](const Explanation &explanation) {
        if (options.json)
            print(jsonOf(explanation, shown));
        else
            print((isFirst ? "" : "\n") + reportOf(explanation, shown));
        isFirst = false;
    };
    const auto isWanted = [&place](std::size_t line) {
        return place.line == 0 || place.line == line;
    };
    SccReader reader(text);
    if (isWanted(reader.headerNumber()))
        tellOf(explainHeader(reader.header(), reader.headerNumber(), findings));
    while (const SccLine *line = reader.next()) {
        if (isWanted(line->number))
            tellOf(explain(*line, options.clock, findings));
    }
    if (isFirst)
        throw Problem{"there is no such line, or nothing stands in it.", "", place.line};
}

bool checkFile(const std::string &path, const Options &options) {
    Input input(path);
    const std::string shown = shownName(path);
    const std::vector<Finding> findings = check(input.all(), options.kinds);
    for (const Finding &finding : findings)
        print(options.json ? jsonOf(finding, shown) : reportOf(finding, shown));
    return findings.empty();
}

} // namespace norvane

#include "command/report_files.h"

#include "command/input.h"
#include "explain/checks/check.h"
#include "explain/reports/check_report.h"
#include "explain/reports/film_report.h"
#include "explain/reports/json.h"
#include "explain/reports/report.h"
#include "framework/files/disk.h"
#include "framework/text/text.h"

#include <algorithm>
#include <charconv>
#include <unistd.h>

namespace norvane {

namespace {

/// Prints reports in large blocks.
template <class Report>
class Printer {
  public:
    Printer() {
        report_.setSink([](std::string_view bytes) {
            disk::writeAll(STDOUT_FILENO, bytes, "standard output");
        });
    }
    Report &report() { return report_; }
    void print() { report_.flush(); } // what is left

  private:
    Report report_;
};

template <class Report>
void explainWith(const Place &place, const Options &options) {
    Input input(place.path, options);
    ExplanationOptions wanted{options.clock, options.choice, options.screen};
    if (place.firstLine != 0) {
        wanted.choice.firstLine = place.firstLine;
        wanted.choice.lastLine = place.lastLine;
    }
    Printer<Report> printer;
    explainFilm(input.all(), shownName(place.path, options), wanted, printer.report());
    printer.print();
}

CheckResult checkInput(Input &input, const CheckRules &rules) {
    Check check(rules);
    const std::string beginning(input.beginning());
    const std::string header(input.nextLine());
    if (check.begin(beginning, header, std::max<std::size_t>(input.lineNumber(), 1))) {
        LineTaker taker;
        for (auto line = input.nextLine(); !line.empty(); line = input.nextLine())
            check.take(taker.take(line, input.lineNumber()));
    }
    return check.finish();
}

template <class Report>
bool checkWith(const std::string &path, const Options &options) {
    Input input(path, options);
    const std::string shown = shownName(path, options);
    const CheckResult result = checkInput(input, options.rules);
    Printer<Report> printer;
    if (options.summary) {
        addSummary(printer.report(), shown, result);
    } else {
        for (const Finding &finding : result.findings) {
            add(printer.report(), shown, finding);
        }
    }
    printer.print();
    return result.findings.empty();
}

} // namespace

Place placeOf(const std::string &argument) {
    const auto isThere = [](const std::string &path) {
        return disk::kindOf(absolutePath(path), disk::Kind::other, Links::all) !=
               disk::Kind::missing;
    };
    const std::size_t colon = argument.rfind(':');
    if (colon == std::string::npos || isThere(argument))
        return {argument};
    Place place{argument.substr(0, colon)};
    const std::string lines = argument.substr(colon + 1);
    const char *const end = lines.data() + lines.size();
    auto read = std::from_chars(lines.data(), end, place.firstLine);
    place.lastLine = place.firstLine;
    if (read.ec == std::errc() && read.ptr != end && *read.ptr == '-')
        read = std::from_chars(read.ptr + 1, end, place.lastLine);
    if (read.ec == std::errc() && read.ptr == end && place.firstLine > 0 &&
        place.firstLine <= place.lastLine)
        return place;
    const bool isFile = place.path == "-" || (!place.path.empty() && isThere(place.path));
    if (isFile)
        throw Problem(inQuotes(lines) + " is not a line number.",
                      "Lines are numbered from 1: write FILE:7 or FILE:7-12.");
    return {argument};
}

void explainFile(const Place &place, const Options &options) {
    if (options.json)
        explainWith<JsonWriter>(place, options);
    else
        explainWith<TextReport>(place, options);
}

void printSummaryHead() {
    Printer<TextReport> printer;
    addSummaryHead(printer.report());
    printer.print();
}

bool checkFile(const std::string &path, const Options &options) {
    return options.json ? checkWith<JsonWriter>(path, options)
                        : checkWith<TextReport>(path, options);
}

std::string jsonOf(const Problem &problem, const std::string &shownFile) {
    JsonWriter json;
    json.beginObject();
    json.member("file", std::string_view(shownFile));
    if (problem.line != 0)
        json.member("line", problem.line);
    json.member("error", problem.what());
    json.endObject();
    json.endLine();
    return std::string(json.bytes());
}

} // namespace norvane

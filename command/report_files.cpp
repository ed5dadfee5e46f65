#include "command/report_files.h"

#include "command/input.h"
#include "explain/checks/check.h"
#include "explain/reports/json.h"
#include "explain/reports/report.h"
#include "explain/reports/summary_report.h"
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
    Report &report() { return report_; }
    void printMuch() {
        constexpr std::size_t kMuch = std::size_t{1} << 16U;
        if (report_.bytes().size() >= kMuch)
            print();
    }
    void print() {
        disk::writeAll(STDOUT_FILENO, report_.bytes(), "standard output");
        report_.clear();
    }

  private:
    Report report_;
};

/// Ends a report where another is to follow.
void part(TextReport &report, bool isFirst) {
    if (!isFirst)
        report.endLine();
}
void part(JsonWriter & /*json*/, bool /*isFirst*/) {}

template <class Report>
void explainWith(const Place &place, const Options &options) {
    Input input(place.path, options);
    const std::string_view text = input.all();
    const std::string shown = shownName(place.path, options);
    FindingKinds ofFile = options.rules.wanted;
    for (const FindingKind kind : {FindingKind::digits, FindingKind::altered,     // the line's own
                                   FindingKind::neverErased, FindingKind::empty}) // the film's
        ofFile.reset(static_cast<std::size_t>(kind));
    const std::vector<Finding> findings = check(text, ofFile);
    Explainer explainer(options.clock, findings);
    Printer<Report> printer;
    bool isFirst = true;
    const auto isWanted = [&](std::size_t line) {
        if (place.line != 0 && place.line != line)
            return false;
        part(printer.report(), isFirst);
        isFirst = false;
        return true;
    };
    SccReader reader(text);
    if (isWanted(reader.headerNumber()))
        addHeader(printer.report(), shown, reader.headerNumber(), reader.header(),
                  explainer.adviceOnHeader(reader.headerNumber()));
    while (const SccLine *line = reader.next()) {
        if (isWanted(line->number))
            add(printer.report(), shown, explainer.explain(*line));
        printer.printMuch();
    }
    if (isFirst)
        throw Problem("there is no such line, or nothing stands in it.", "", place.line);
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
            printer.printMuch();
        }
    }
    printer.print();
    return result.findings.empty();
}

} // namespace

Place placeOf(const std::string &argument) {
    const std::size_t colon = argument.rfind(':');
    if (colon == std::string::npos ||
        disk::kindOf(absolutePath(argument), disk::Kind::other, Links::all) != disk::Kind::missing)
        return {argument};
    Place place{argument.substr(0, colon)};
    const char *const end = argument.data() + argument.size();
    const auto [rest, error] = std::from_chars(argument.data() + colon + 1, end, place.line);
    return error == std::errc() && rest == end && place.line > 0 ? place : Place{argument};
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

#include "explain/reports/check_report.h"

#include <cmath>
#include <numeric>

namespace norvane {

namespace {

std::string timecodeOf(const std::optional<long> &frame, const FilmSummary &summary) {
    return frame ? frameTimecode(*frame, summary.dropFrame) : "";
}

double roundedRate(const FilmSummary &summary) {
    return std::round(summary.fastest.value_or(0) * 10) / 10;
}

} // namespace

void add(TextReport &report, std::string_view file, const Finding &finding) {
    report.add(file)
        .add(":")
        .add(finding.line)
        .add(": ")
        .add(infoOf(finding.kind).name)
        .add(": ")
        .add(finding.text);
    if (finding.count > 1) {
        report.add(" And ").add(finding.count - 1).add(" more");
        for (std::size_t i = 1; i < finding.lines.size(); ++i) {
            report.add(i > 1                       ? ", "
                       : finding.lines.size() == 2 ? ", line "
                                                   : ", lines ")
                .add(finding.lines[i]);
        }
        report.add(finding.lines.size() < finding.count ? " ...; --each lists them." : ".");
    }
    report.endLine();
}

void add(JsonWriter &json, std::string_view file, const Finding &finding) {
    json.beginObject();
    json.member("file", file);
    json.member("line", finding.line);
    if (!finding.timecode.empty())
        json.member("timecode", std::string_view(finding.timecode));
    if (finding.frame)
        json.member("frame", *finding.frame);
    json.listMember("words", finding.words);
    json.member("kind", infoOf(finding.kind).name);
    json.member("severity", nameOf(severityOf(finding)));
    json.member("count", finding.count);
    json.listMember("lines", finding.lines);
    json.member("text", std::string_view(finding.text));
    json.endObject();
    json.endLine();
}

void addSummaryHead(TextReport &report) {
    report.add("file");
    for (const std::string_view column :
         {"captions", "first", "last", "fastest", "longest row", "most rows", "findings"}) {
        report.endColumn();
        report.add(column);
    }
    for (const FindingKindInfo &kind : kFindingKinds) {
        report.endColumn();
        report.add(kind.name);
    }
    report.endLine();
}

void addSummary(TextReport &report, std::string_view file, const CheckResult &result) {
    const FilmSummary &summary = result.summary;
    report.add(ReplaceAllB(file, "\t", " ")); // a tab would begin a column
    for (const std::string &value :
         {std::to_string(summary.captions), timecodeOf(summary.firstFrame, summary),
          timecodeOf(summary.lastFrame, summary), summary.fastest ? Str(roundedRate(summary)) : "",
          std::to_string(summary.longestRow), std::to_string(summary.mostRows),
          std::to_string(
              std::accumulate(result.counts.begin(), result.counts.end(), std::size_t{0}))}) {
        report.endColumn();
        report.add(value);
    }
    for (const std::size_t count : result.counts) {
        report.endColumn();
        report.add(count);
    }
    report.endLine();
}

void addSummary(JsonWriter &json, std::string_view file, const CheckResult &result) {
    const FilmSummary &summary = result.summary;
    json.beginObject();
    json.member("file", file);
    json.member("captions", summary.captions);
    if (summary.firstFrame) {
        json.member("first", std::string_view(timecodeOf(summary.firstFrame, summary)));
        json.member("last", std::string_view(timecodeOf(summary.lastFrame, summary)));
    }
    if (summary.fastest)
        json.member("fastest", roundedRate(summary));
    json.member("longestRow", summary.longestRow);
    json.member("mostRows", summary.mostRows);
    json.name("findings");
    json.beginObject();
    for (std::size_t i = 0; i < result.counts.size(); ++i) {
        if (result.counts[i] > 0)
            json.member(kFindingKinds[i].name, result.counts[i]);
    }
    json.endObject();
    json.endObject();
    json.endLine();
}

} // namespace norvane

#include "explain/reports/finding_report.h"

namespace norvane {

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
    json.name("words");
    json.beginList();
    for (const std::string &word : finding.words)
        json.add(word);
    json.endList();
    json.member("kind", infoOf(finding.kind).name);
    json.member("severity", nameOf(severityOf(finding)));
    json.member("count", finding.count);
    json.name("lines");
    json.beginList();
    for (const std::size_t line : finding.lines)
        json.add(line);
    json.endList();
    json.member("text", std::string_view(finding.text));
    json.endObject();
    json.endLine();
}

} // namespace norvane

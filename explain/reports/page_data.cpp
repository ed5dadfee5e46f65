#include "explain/reports/page_data.h"

#include "explain/checks/check.h"
#include "explain/checks/film_transcript.h"
#include "explain/reports/caption_report.h"
#include "explain/reports/page_lines.h"

#include <cmath>

// The data of a page says the same as an explanation and a check.

namespace norvane {

namespace {

/// What keeps a film from having a transcript.
std::optional<Problem> refusalOf(std::string_view text, Clock clock) {
    LineReader lines(text);
    lines.nextNotEmpty(); // the header
    FilmTranscript transcript(Form::timecode, clock, text, "");
    try {
        for (auto line = lines.nextNotEmpty(); !line.empty(); line = lines.nextNotEmpty())
            transcript.add(line, lines.number());
    } catch (const Problem &problem) {
        return problem;
    }
    return {};
}

void addRefusal(JsonWriter &json, const Problem &problem, std::string_view text) {
    constexpr std::size_t kAround = 4;
    constexpr std::size_t kMost = 400; // bytes of a line
    json.name("refused");
    json.beginObject();
    json.member("line", problem.line);
    json.member("text", std::string_view(problem.what()));
    json.member("help", std::string_view(problem.help));
    json.name("around");
    json.beginList();
    LineReader lines(text);
    while (!lines.atEnd() && lines.number() < problem.line + kAround) {
        const std::string_view line = lines.next();
        if (lines.number() + kAround < problem.line)
            continue;
        json.beginObject();
        json.member("line", lines.number());
        json.member("text", line.substr(0, kMost));
        json.endObject();
    }
    json.endList();
    json.endObject();
}

void addSummary(JsonWriter &json, const CheckResult &result) {
    const FilmSummary &summary = result.summary;
    const auto addFrame = [&](std::string_view frameName, std::string_view timeName,
                              const std::optional<long> &frame) {
        if (!frame)
            return;
        json.member(timeName, std::string_view(frameTimecode(*frame, summary.dropFrame)));
        json.member(frameName, *frame);
    };
    json.beginObject();
    json.member("captions", summary.captions);
    json.member("dropFrame", summary.dropFrame);
    json.name("services");
    json.beginList();
    for (std::size_t i = 0; i < kServiceNames.size(); ++i) {
        if (summary.services[i])
            json.add(kServiceNames.at(i));
    }
    json.endList();
    json.name("modes");
    json.beginList();
    for (const CaptionMode mode : {CaptionMode::popOn, CaptionMode::rollUp, CaptionMode::paintOn}) {
        if (summary.modes[static_cast<std::size_t>(mode)])
            json.add(nameOf(mode));
    }
    json.endList();
    addFrame("firstFrame", "first", summary.firstFrame);
    addFrame("lastFrame", "last", summary.lastFrame);
    json.name("fastest");
    if (summary.fastest)
        json.add(std::round(*summary.fastest * 10) / 10);
    else
        json.addNull();
    json.member("longestRow", summary.longestRow);
    json.member("mostRows", summary.mostRows);
    json.member("lines", summary.lines);
    json.name("findings");
    json.beginObject();
    for (std::size_t i = 0; i < result.counts.size(); ++i) {
        if (result.counts.at(i) > 0)
            json.member(kFindingKinds.at(i).name, result.counts.at(i));
    }
    json.endObject();
    json.endObject();
}

void addKind(JsonWriter &json, std::string_view kind, Severity severity, std::string_view title) {
    json.beginObject();
    json.member("kind", kind);
    json.member("severity", nameOf(severity));
    json.member("title", title);
    json.endObject();
}

void addCaptions(JsonWriter &json, const FilmCaptions &captions, const PageLines &lines) {
    json.name("captions");
    json.beginList();
    for (const Caption &caption : captions.list()) {
        if (caption.number == 0)
            continue;
        const Sending sending = sendingOf(caption);
        json.beginObject();
        addMembers(json, caption, captions);
        json.member("startFrame", long{caption.shownBy->frame});
        if (caption.removedBy)
            json.member("endFrame", long{caption.removedBy->frame});
        json.member("sentFrom", long{sending.first.frame});
        json.member("sentTo", long{sending.last.frame});
        addRows(json, caption, [&lines](const Moment &sent) {
            return static_cast<long>(lines.placeOf(sent.line, sent.word));
        });
        json.endObject();
    }
    json.endList();
}

void addKinds(JsonWriter &json, const CheckResult &result, bool hasAdvice) {
    json.name("kinds");
    json.beginList();
    for (const Severity severity : {Severity::error, Severity::warning, Severity::note}) {
        for (std::size_t i = 0; i < kFindingKinds.size(); ++i) {
            const FindingKindInfo &info = kFindingKinds.at(i);
            if (info.severity == severity && result.counts.at(i) > 0)
                addKind(json, info.name, severity, info.title);
        }
    }
    if (hasAdvice)
        addKind(json, kAdvice, Severity::note, "other remarks on the transcript");
    json.endList();
}

void addBeginning(JsonWriter &json, std::string_view name, std::string_view program) {
    json.beginObject();
    json.member("program", program);
    json.member("file", name);
}

} // namespace

PageData refusedPage(std::string_view name, std::string_view program, const Problem &problem) {
    JsonWriter json;
    addBeginning(json, name, program);
    addRefusal(json, problem, "");
    json.endObject();
    return {problem, std::string(json.bytes()), "null"};
}

PageData pageData(std::string_view text, std::string_view name, std::string_view program,
                  Clock clock) {
    CheckRules rules;
    rules.told = Findings::Told::each;
    std::vector<Caption> list;
    const CheckResult result =
        check(text, rules, [&list](Caption &&caption) { list.push_back(std::move(caption)); });
    PageData data;
    data.refused = refusalOf(text, clock);
    JsonWriter summary;
    addSummary(summary, result);
    data.summary = summary.bytes();

    JsonWriter json;
    addBeginning(json, name, program);
    SccReader reader(text);
    json.name("header");
    json.beginObject();
    json.member("line", reader.headerNumber());
    json.member("text", reader.header());
    json.endObject();
    json.name("summary");
    addSummary(json, result);
    if (data.refused) {
        addRefusal(json, *data.refused, text);
    } else {
        json.name("refused");
        json.addNull();
        const FilmCaptions captions(std::move(list), result.summary.dropFrame);
        Explainer explainer(clock, result.findings);
        PageLines lines(json, captions, result.findings);
        json.name("lines");
        json.beginList();
        while (const SccLine *line = reader.next())
            lines.add(explainer.explain(*line));
        json.endList();
        lines.addCodes();
        addCaptions(json, captions, lines);
        bool hasAdvice = false;
        lines.addFindings(hasAdvice);
        addKinds(json, result, hasAdvice);
    }
    json.endObject();
    data.film = json.bytes();
    return data;
}

} // namespace norvane

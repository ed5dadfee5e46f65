#pragma once

#include "explain/checks/check.h"
#include "explain/checks/problem.h"
#include "explain/reports/line_choice.h"
#include "explain/reports/report.h"

namespace norvane {

/// What is wanted of an explanation: all lines, unless some are chosen.
struct ExplanationOptions {
    Clock clock = Clock::unbuffered;
    LineChoice choice{};
    bool screen = false; // with pictures of rows
};

/// Separates a report from the next.
inline void endPart(TextReport &report) {
    report.endLine();
}
inline void endPart(JsonWriter & /*json*/) {}

/// Adds the explanations of a film, any text, to `report`. `file` is what the user called the film.
/// Throws Problem when none of its lines was chosen.
template <class Report>
void explainFilm(std::string_view text, std::string_view file, const ExplanationOptions &options,
                 Report &report) {
    CheckRules rules;
    rules.told = Findings::Told::each;
    for (const FindingKind kind : {FindingKind::digits, FindingKind::altered,     // the line's own
                                   FindingKind::neverErased, FindingKind::empty}) // the film's
        rules.wanted.reset(static_cast<std::size_t>(kind));
    std::vector<Caption> list;
    const CheckResult result =
        check(text, rules, [&list](Caption &&caption) { list.push_back(std::move(caption)); });
    Explainer explainer(options.clock, result.findings);
    const FilmCaptions captions(std::move(list), result.summary.dropFrame);
    const LineChoice &choice = options.choice;
    const LineChooser chooser(choice, captions);
    bool isFirst = true;
    const auto begin = [&] {
        if (!isFirst)
            endPart(report);
        isFirst = false;
    };
    SccReader reader(text);
    const auto onHeader = explainer.adviceOnHeader(reader.headerNumber());
    if (chooser.wantsHeader(reader.headerNumber(), !onHeader.empty())) {
        begin();
        addHeader(report, file, reader.headerNumber(), reader.header(), onHeader);
    }
    while (const SccLine *line = reader.next()) {
        if (!choice.isInRange(line->number))
            continue;
        const Explanation &explanation = explainer.explain(*line);
        if (!chooser.wants(explanation))
            continue;
        begin();
        add(report, file, explanation, captions, options.screen);
    }
    if (isFirst && choice.text.empty() && choice.time.empty() && !choice.advised)
        throw Problem("there is no such line, or it is empty.", "",
                      choice.lastLine == LineChoice().lastLine ? 0 : choice.firstLine);
    if (isFirst && !choice.advised)
        throw Problem("no line has that text or time.");
}

} // namespace norvane

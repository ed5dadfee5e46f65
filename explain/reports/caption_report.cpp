#include "explain/reports/caption_report.h"

#include "explain/checks/check_captions.h"

#include <algorithm>
#include <cmath>

namespace norvane {

namespace {

constexpr auto kColourNames = std::to_array<std::string_view>(
    {"white", "green", "blue", "cyan", "red", "yellow", "magenta", "black", "transparent"});

std::string_view nameOf(Colour colour) {
    return kColourNames.at(static_cast<std::size_t>(colour));
}

void addWhen(TextReport &report, const FilmCaptions &captions, const Caption &caption,
             std::size_t line) {
    if (caption.number == 0) {
        report.add("never shown");
        if (caption.removedBy)
            report.add(", erased by line ").add(std::size_t{caption.removedBy->line});
        return;
    }
    report.add("seen ").add(captions.timecodeOf(caption.shownBy->frame));
    if (caption.removedBy)
        report.add(" to ").add(captions.timecodeOf(caption.removedBy->frame));
    if (caption.shownBy->line != line)
        report.add(", shown by line ").add(std::size_t{caption.shownBy->line});
    if (!caption.removedBy)
        report.add(", never removed");
    else if (caption.removedBy->line != line)
        report.add(", removed by line ").add(std::size_t{caption.removedBy->line});
}

/// The rows of a caption between lines that are as wide as the screen.
void addScreen(TextReport &report, const Caption &caption) {
    constexpr std::string_view kEdge = "       +--------------------------------+";
    constexpr std::size_t kNumberWidth = 6;
    report.add(kEdge);
    report.endLine();
    for (const CaptionRow &row : caption.rows) {
        const std::string number = std::to_string(row.row);
        const auto column = static_cast<std::size_t>(row.column) - 1;
        const std::size_t width = column + row.cells.size();
        report.pad(kNumberWidth, number.size()).add(number).add(" |").pad(column, 0);
        report.add(textOf(row)).pad(kScreenColumns, width).add("|");
        report.endLine();
    }
    report.add(kEdge);
    report.endLine();
}

/// "line 7", "lines 7 and 8".
std::string linesNamed(const Caption &caption) {
    const std::vector<std::uint32_t> lines = linesOf(caption);
    std::string text = lines.size() == 1 ? "line " : "lines ";
    for (std::size_t i = 0; i < lines.size(); ++i)
        text += (i == 0 ? "" : i + 1 == lines.size() ? " and " : ", ") + std::to_string(lines[i]);
    return text;
}

bool isLoadedBy(const Caption &caption, std::size_t line) {
    const auto lines = linesOf(caption);
    return std::binary_search(lines.begin(), lines.end(), line);
}

void addStyle(JsonWriter &json, const StyledColumns &run) {
    json.beginObject();
    json.member("from", run.from);
    json.member("to", run.to);
    if (run.style.colour != Colour::white)
        json.member("colour", nameOf(run.style.colour));
    if (run.style.background != Colour::black || run.style.semiTransparent)
        json.member("background", nameOf(run.style.background));
    for (const auto &[is, called] : {std::pair(run.style.semiTransparent, "semiTransparent"),
                                     {run.style.italics, "italics"},
                                     {run.style.underlined, "underline"},
                                     {run.style.flashes, "flash"}}) {
        if (is)
            json.member(called, true);
    }
    json.endObject();
}

void addRow(JsonWriter &json, const CaptionRow &row) {
    json.member("row", row.row);
    json.member("column", row.column);
    json.member("text", std::string_view(textOf(row)));
    const std::vector<StyledColumns> styles = stylesOf(row);
    if (styles.empty())
        return;
    json.name("styles");
    json.beginList();
    for (const StyledColumns &run : styles)
        addStyle(json, run);
    json.endList();
}

/// From which words its characters come: for each line, the word of each character.
void addOrigins(JsonWriter &json, const CaptionRow &row,
                const std::function<long(const Moment &)> &placeOf) {
    json.name("from");
    json.beginList();
    std::uint32_t line = 0;
    for (const Cell &cell : row.cells) {
        if (cell.code != 0 && cell.sent.line != line) {
            if (line != 0) {
                json.endList();
                json.endList();
            }
            line = cell.sent.line;
            json.beginList();
            json.add(std::size_t{line});
            json.beginList();
        }
        if (line != 0)
            json.add(cell.code != 0 ? placeOf(cell.sent) : -1L);
    }
    if (line != 0) {
        json.endList();
        json.endList();
    }
    json.endList();
}

} // namespace

std::string_view nameOf(CaptionMode mode) {
    return mode == CaptionMode::popOn    ? "pop-on"
           : mode == CaptionMode::rollUp ? "roll-up"
                                         : "paint-on";
}

void addSeen(TextReport &report, const FilmCaptions &captions, std::size_t line, bool screen) {
    for (const auto &[ofLine, index] : captions.loadedBy(line)) {
        const Caption &caption = captions.list()[index];
        addWhen(report, captions, caption, line);
        report.endLine();
        if (screen)
            addScreen(report, caption);
    }
    for (const auto &[ofLine, index] : captions.shownBy(line)) {
        const Caption &caption = captions.list()[index];
        if (isLoadedBy(caption, line))
            continue;
        report.add("shows the caption of ").add(linesNamed(caption));
        report.endLine();
    }
}

void addMembers(JsonWriter &json, const Caption &caption, const FilmCaptions &captions) {
    json.member("caption", caption.number);
    json.member("service", nameOf(caption.service));
    json.member("mode", nameOf(caption.mode));
    json.member("start", std::string_view(captions.timecodeOf(caption.shownBy->frame)));
    if (caption.removedBy)
        json.member("end", std::string_view(captions.timecodeOf(caption.removedBy->frame)));
    if (const auto frames = framesOf(caption))
        json.member("frames", *frames);
    if (const auto rate = readingRateOf(caption))
        json.member("rate", std::round(*rate * 10) / 10);
    json.name("lines");
    json.beginList();
    for (const std::uint32_t line : linesOf(caption))
        json.add(std::size_t{line});
    json.endList();
    json.member("shownBy", std::size_t{caption.shownBy->line});
    if (caption.removedBy)
        json.member("removedBy", std::size_t{caption.removedBy->line});
}

void addRows(JsonWriter &json, const Caption &caption,
             const std::function<long(const Moment &)> &placeOf) {
    json.name("rows");
    json.beginList();
    for (const CaptionRow &row : caption.rows) {
        json.beginObject();
        addRow(json, row);
        if (placeOf)
            addOrigins(json, row, placeOf);
        json.endObject();
    }
    json.endList();
}

void addSeen(JsonWriter &json, std::string_view file, const FilmCaptions &captions,
             std::size_t line) {
    for (const auto &[ofLine, index] : captions.shownBy(line)) {
        const Caption &caption = captions.list()[index];
        json.beginObject();
        json.member("file", file);
        addMembers(json, caption, captions);
        addRows(json, caption);
        json.endObject();
        json.endLine();
    }
}

} // namespace norvane

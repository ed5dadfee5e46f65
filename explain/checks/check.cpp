#include "explain/checks/check.h"

#include "decode/caption.h"
#include "explain/checks/check_codes.h"
#include "explain/checks/check_timecodes.h"
#include "explain/checks/refusal_help.h"
#include "explain/standard/scc_header.h"
#include "explain/walk/entry_remarks.h"
#include "framework/text/text.h"

#include <algorithm>

namespace norvane {

namespace {

/// What the transcript leaves out of a line without a word, or why it cannot have the line.
void lookAtEntry(const SccLine &line, const LineWalk &walk, Findings &findings) {
    constexpr std::size_t kFirstTab = 1;
    const std::size_t read = line.data.timecode.size() + kFirstTab + line.data.hexText.size();
    if (read < line.text.size()) {
        findings.add(line.number, FindingKind::tab,
                     "What stands behind the second tab, " +
                         startInQuotes(line.text.substr(read + 1)) +
                         ", is not read: put a blank in the place of that tab.");
    }
    if (walk.entry())
        return;
    try { // the decode knows the reason
        std::string caption;
        appendCaption(caption, line.data.hexText);
    } catch (const OutOfBoundsException &failure) {
        findings.add(line.number, FindingKind::word, noEntry(failure, line.data, Clock::scc));
    }
}

/// Where the transcript of a line is not what its words say, though they are sound: digits that
/// stay, and words that the chain alters.
void lookAtRemarks(const SccLine &line, const LineWalk &walk, Findings &findings) {
    std::vector<EntryRemark> remarks;
    remarkOn(line, walk, false, remarks);
    for (EntryRemark &remark : remarks) {
        findings.add(line.number,
                     remark.kind == EntryRemark::Kind::digits ? FindingKind::digits
                                                              : FindingKind::altered,
                     std::move(remark.text));
    }
}

/// What is wrong with the first line; the empty text when nothing is.
std::string headerFault(std::string_view header) {
    if (header.empty())
        return "The file is empty: ask for it again.";
    header = withoutByteOrderMark(header);
    if (header.starts_with(kSccHeader))
        return "";
    if (std::holds_alternative<DataLine>(takeApart(header)))
        return "The file has no header, so that its first caption counts as one and is lost: put "
               "the line " +
               inQuotes(kSccHeader) + " ahead of it.";
    return "The first line is " + startInQuotes(header) + ", and not " + inQuotes(kSccHeader) +
           ", by which programs know the format: correct it.";
}

} // namespace

std::vector<Finding> check(std::string_view text, const FindingKinds &wanted) {
    Findings findings(wanted);
    SccReader reader(text);
    const std::string foreign = foreignFormat(text);
    const std::string fault = foreign.empty() ? headerFault(reader.header()) : foreign;
    if (!fault.empty())
        findings.add(reader.headerNumber(), FindingKind::header, fault);
    if (!findings.list().empty() && !foreign.empty())
        return findings.list(); // all else would follow from that
    TimecodeCheck timecodes;
    CodeCheck codes(text);
    ColumnCheck columns;
    LineWalk walk;
    while (const SccLine *line = reader.next()) {
        if (line->refusal) {
            findings.add(line->number,
                         *line->refusal == Refusal::noTab ? FindingKind::tab
                                                          : FindingKind::timecode,
                         refusalHelp(line->text));
            continue;
        }
        timecodes.look(*line, findings);
        codes.look(*line, findings);
        columns.look(*line, findings);
        walk.walk(*line);
        lookAtEntry(*line, walk, findings);
        if (findings.wants(FindingKind::digits) || findings.wants(FindingKind::altered))
            lookAtRemarks(*line, walk, findings);
    }
    codes.tellSingles(findings);
    std::vector<Finding> list = findings.list();
    std::stable_sort(list.begin(), list.end(),
                     [](const Finding &a, const Finding &b) { return a.line < b.line; });
    return list;
}

} // namespace norvane

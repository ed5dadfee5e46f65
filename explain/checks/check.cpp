#include "explain/checks/check.h"

#include "decode/caption.h"
#include "explain/checks/refusal_help.h"
#include "explain/standard/scc_header.h"
#include "framework/text/text.h"

#include <algorithm>

namespace norvane {

namespace {

/// What is wrong with the first line; the empty text when nothing is.
std::string headerFault(std::string_view header) {
    if (header.empty())
        return "The file is empty: request a new copy.";
    header = withoutByteOrderMark(header);
    if (header.starts_with(kSccHeader))
        return "";
    if (std::holds_alternative<DataLine>(takeApart(header))) {
        return "The header is missing, and the first line is skipped in its place: insert " +
               inQuotes(kSccHeader) + " above it.";
    }
    return "The first line is " + startInQuotes(header) + " instead of " + inQuotes(kSccHeader) +
           ", which identifies the format: correct it.";
}

/// Why a line has no entry, which the decode knows.
void lookAtLostEntry(const SccLine &line, Findings &findings) {
    try {
        std::string caption;
        appendCaption(caption, line.data.hexText);
    } catch (const OutOfBoundsException &failure) {
        findings.add(line.number, FindingKind::word, 1,
                     [&] { return findingOn(line, noEntry(failure, line.data, Clock::scc)); });
    }
}

} // namespace

Check::Check(const CheckRules &rules, CaptionSink also)
    : findings_(rules.wanted, rules.told), captions_(rules.limits),
      decoder_([this, sink = std::move(also)](Caption &&caption) {
          captions_.look(caption, dropFrame_.value_or(false), findings_);
          if (sink)
              sink(std::move(caption));
      }) {}

bool Check::begin(std::string_view beginning, std::string_view header, std::size_t headerNumber) {
    headerNumber_ = headerNumber;
    const std::string foreign = foreignFormat(beginning);
    const std::string fault = foreign.empty() ? headerFault(header) : foreign;
    const auto tell = [&](FindingKind kind, const std::string &text) {
        findings_.add(headerNumber, kind, [&text] {
            Finding finding;
            finding.text = text;
            return finding;
        });
    };
    if (withoutByteOrderMark(header).size() < header.size() && foreign.empty())
        tell(FindingKind::bom, "The file begins with a byte order mark, which some programs "
                               "reject: save it without one.");
    if (!fault.empty())
        tell(FindingKind::header, fault);
    needsCaptions_ = !header.empty() && foreign.empty();
    return foreign.empty() || !findings_.wants(FindingKind::header); // all else follows from that
}

void Check::take(const SccLine &line) {
    if (line.refusal) {
        needsCaptions_ = false;
        findings_.add(line.number,
                      *line.refusal == Refusal::noTab ? FindingKind::tab : FindingKind::timecode,
                      [&line] { return findingOn(line, refusalHelp(line.text)); });
        return;
    }
    ++lines_;
    if (!dropFrame_ && line.timecode)
        dropFrame_ = line.timecode->dropFrame;
    timecodes_.look(line, findings_);
    codes_.look(line, findings_);
    decoder_.take(line);
    lookAtEntry(line);
}

/// What the transcript leaves out of a line without a word, or why it cannot have the line.
void Check::lookAtEntry(const SccLine &line) {
    constexpr std::size_t kFirstTab = 1;
    const std::size_t read = line.data.timecode.size() + kFirstTab + line.data.hexText.size();
    if (read < line.text.size()) {
        findings_.add(line.number, FindingKind::tab, 1, [&] {
            return findingOn(line, "The text after the second tab, " +
                                       startInQuotes(line.text.substr(read + 1)) +
                                       ", is ignored: replace that tab with a space.");
        });
    }
    walk_.walk(line);
    if (!walk_.entry())
        lookAtLostEntry(line, findings_);
    if (findings_.wants(FindingKind::digits) || findings_.wants(FindingKind::altered))
        lookAtRemarks(line);
}

/// Where the transcript of a line differs from its words though these are correct: digits that
/// stay, and words that the chain alters.
void Check::lookAtRemarks(const SccLine &line) {
    constexpr std::size_t kMostWords = 8;
    remarks_.clear();
    remarkOn(line, walk_, false, remarks_);
    for (EntryRemark &remark : remarks_) {
        const FindingKind kind =
            remark.kind == EntryRemark::Kind::digits ? FindingKind::digits : FindingKind::altered;
        findings_.add(line.number, kind, remark.cause, [&] {
            std::vector<std::string> words;
            for (std::size_t i = 0; i < std::min(remark.count, kMostWords); ++i)
                words.emplace_back(line.words[remark.word + i].digits);
            return findingOn(line, std::move(remark.text), remark.word, std::move(words));
        });
    }
}

CheckResult Check::finish() {
    decoder_.finish();
    codes_.finish(findings_);
    FilmSummary summary = captions_.summary();
    summary.lines = lines_;
    summary.dropFrame = dropFrame_.value_or(false);
    if (summary.captions == 0 && needsCaptions_) {
        findings_.add(headerNumber_, FindingKind::empty, [] {
            Finding finding;
            finding.text = "No caption is ever shown: request a new copy.";
            return finding;
        });
    }
    return {findings_.take(), findings_.counts(), summary};
}

CheckResult check(std::string_view text, const CheckRules &rules, CaptionSink also) {
    Check check(rules, std::move(also));
    SccReader reader(text);
    if (check.begin(text, reader.header(), reader.headerNumber())) {
        while (const SccLine *line = reader.next())
            check.take(*line);
    }
    return check.finish();
}

std::vector<Finding> check(std::string_view text, const FindingKinds &wanted) {
    CheckRules rules;
    rules.wanted = wanted;
    rules.told = Findings::Told::each;
    return check(text, rules).findings;
}

} // namespace norvane

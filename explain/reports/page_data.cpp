#include "explain/reports/page_data.h"

#include "explain/checks/check.h"
#include "explain/checks/film_transcript.h"
#include "explain/reports/caption_report.h"
#include "explain/reports/explanation.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <unordered_map>

// The data of a page says the same as an explanation and a check. It is packed, since a film has
// tens of thousands of words: what words have in common stands once, and trailing empty texts of a
// word are left out.

namespace norvane {

namespace {

constexpr std::string_view kAdvice = "advice"; // advice that no finding gives

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

/// Writes the lines of a film, and collects what stands elsewhere.
class LineWriter {
  public:
    LineWriter(JsonWriter &json, const FilmCaptions &captions, const std::vector<Finding> &findings)
        : json_(json), captions_(captions), findings_(findings) {}

    void add(const Explanation &explanation);

    void addCodes();
    void addFindings(bool &hasAdvice);

    /// The place among the words of a line of the word that was sent in a frame of it.
    std::size_t placeOf(std::uint32_t line, std::uint32_t frame) const;

  private:
    struct Advice {
        std::size_t line;
        std::string timecode;
        std::string text;
    };
    /// Characters of an entry, from the first to before the second.
    using Marked = std::pair<std::size_t, std::size_t>;

    void addWords(const Explanation &explanation);
    void addCaptions(std::string_view name, const FilmCaptions::Range &range);
    void markFindings(const Explanation &explanation);

    JsonWriter &json_;
    const FilmCaptions &captions_;
    const std::vector<Finding> &findings_;
    std::map<std::pair<std::string, Service>, std::size_t> codes_;
    std::vector<const CodeMeaning *> meanings_;
    std::vector<std::pair<const std::string *, const Service *>> codeKeys_;
    std::vector<bool> parity_;
    std::unordered_map<std::uint32_t, std::vector<std::size_t>> starts_; // of words, by line
    std::vector<Advice> advice_;
    std::map<const Finding *, Marked> marked_;
};

void LineWriter::addCaptions(std::string_view name, const FilmCaptions::Range &range) {
    json_.name(name);
    json_.beginList();
    for (const auto &[line, index] : range) {
        if (captions_.list()[index].number != 0)
            json_.add(captions_.list()[index].number);
    }
    json_.endList();
}

void LineWriter::addWords(const Explanation &explanation) {
    const SccLine &line = *explanation.line;
    std::vector<std::size_t> &starts = starts_[static_cast<std::uint32_t>(line.number)];
    json_.name("words");
    json_.beginList();
    for (const auto &[first, times] : explanation.words) {
        const SccWord &word = line.words[first];
        starts.push_back(first);
        const auto [found, isNew] =
            codes_.try_emplace({std::string(word.digits), word.service}, codes_.size());
        if (isNew) {
            codeKeys_.emplace_back(&found->first.first, &found->first.second);
            meanings_.push_back(word.meaning);
            parity_.push_back(!word.isCode || word.parity);
        }
        const WordFate fate = explanation.walk->fateOf(first, times);
        json_.beginList();
        json_.add(found->second);
        json_.add(times);
        const std::array<std::string_view, 3> texts = {fate.text, fate.kept, fate.swallowed};
        const auto isEmpty = [](std::string_view text) { return text.empty(); };
        auto last = texts.end();
        while (last != texts.begin() && isEmpty(*(last - 1)))
            --last;
        for (auto text = texts.begin(); text != last; ++text)
            json_.add(*text);
        json_.endList();
    }
    json_.endList();
}

/// Which characters of the entry the findings on it concern, and what is advised beside them.
void LineWriter::markFindings(const Explanation &explanation) {
    const SccLine &line = *explanation.line;
    auto next =
        std::partition_point(findings_.begin(), findings_.end(),
                             [&](const Finding &finding) { return finding.line < line.number; });
    const auto first = next;
    std::vector<std::size_t> ends; // of what comes from the words, in characters of the entry
    for (; next != findings_.end() && next->line == line.number; ++next) {
        const bool isOnEntry =
            next->kind == FindingKind::altered || next->kind == FindingKind::digits;
        if (!isOnEntry || !next->frame || *next->frame >= line.words.size())
            continue;
        for (std::size_t i = ends.size(); i < line.words.size(); ++i)
            ends.push_back((i == 0 ? 0 : ends[i - 1]) + Len(explanation.walk->fateOf(i, 1).text));
        const std::size_t behind =
            std::min(*next->frame + std::max<std::size_t>(next->words.size(), 1), ends.size());
        marked_[&*next] = {*next->frame == 0 ? 0 : ends[*next->frame - 1], ends[behind - 1]};
    }
    for (const std::string &text : explanation.advice) {
        const auto isTold = [&](const Finding &finding) { return finding.text == text; };
        if (std::none_of(first, next, isTold))
            advice_.push_back({line.number, std::string(line.data.timecode), text});
    }
}

void LineWriter::add(const Explanation &explanation) {
    const SccLine &line = *explanation.line;
    json_.beginObject();
    json_.member("line", line.number);
    json_.name("frame");
    if (line.timecode)
        json_.add(line.timecode->count());
    else
        json_.addNull();
    json_.member("timecode", line.data.timecode);
    json_.member("mode", nameOf(line.mode));
    json_.member("entry", line.entry);
    json_.member("start", std::string_view(explanation.start));
    json_.member("text", explanation.entry.value_or(""));
    addWords(explanation);
    addCaptions("seen", captions_.loadedBy(line.number));
    addCaptions("shows", captions_.shownBy(line.number));
    addCaptions("removes", captions_.removedBy(line.number));
    json_.name("advice");
    json_.beginList();
    for (const std::string &text : explanation.advice)
        json_.add(text);
    json_.endList();
    json_.endObject();
    markFindings(explanation);
}

void LineWriter::addCodes() {
    json_.name("codes");
    json_.beginList();
    for (std::size_t i = 0; i < codeKeys_.size(); ++i) {
        json_.beginList();
        json_.add(std::string_view(*codeKeys_[i].first));
        json_.add(nameOf(*codeKeys_[i].second));
        json_.add(meanings_[i]->name.empty() ? "not four hex digits" : meanings_[i]->name);
        json_.add(bool{parity_[i]});
        json_.endList();
    }
    json_.endList();
}

void LineWriter::addFindings(bool &hasAdvice) {
    json_.name("findings");
    json_.beginList();
    for (const Finding &finding : findings_) {
        json_.beginObject();
        json_.member("line", finding.line);
        json_.member("timecode", std::string_view(finding.timecode));
        if (finding.frame)
            json_.member("frame", *finding.frame);
        json_.name("words");
        json_.beginList();
        for (const std::string &word : finding.words)
            json_.add(word);
        json_.endList();
        json_.member("kind", infoOf(finding.kind).name);
        json_.member("severity", nameOf(severityOf(finding)));
        json_.member("text", std::string_view(finding.text));
        if (const auto marked = marked_.find(&finding); marked != marked_.end()) {
            json_.member("entryFrom", marked->second.first);
            json_.member("entryTo", marked->second.second);
        }
        json_.endObject();
    }
    for (const Advice &advice : advice_) {
        json_.beginObject();
        json_.member("line", advice.line);
        json_.member("timecode", std::string_view(advice.timecode));
        json_.member("kind", kAdvice);
        json_.member("severity", nameOf(Severity::note));
        json_.member("text", std::string_view(advice.text));
        json_.endObject();
    }
    json_.endList();
    hasAdvice = !advice_.empty();
}

std::size_t LineWriter::placeOf(std::uint32_t line, std::uint32_t frame) const {
    const auto found = starts_.find(line);
    if (found == starts_.end())
        return 0;
    const std::vector<std::size_t> &starts = found->second;
    return static_cast<std::size_t>(std::upper_bound(starts.begin(), starts.end(), frame) -
                                    starts.begin()) -
           1;
}

void addCaptions(JsonWriter &json, const FilmCaptions &captions, const LineWriter &lines) {
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
        LineWriter lines(json, captions, result.findings);
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

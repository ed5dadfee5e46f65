#include "explain/reports/page_lines.h"

#include <algorithm>

// Packed, since a film has tens of thousands of words: what words have in common stands once, and
// trailing empty texts of a word are left out.

namespace norvane {

void PageLines::addCaptions(std::string_view name, const FilmCaptions::Range &range) {
    json_.name(name);
    json_.beginList();
    for (const auto &[line, index] : range) {
        if (captions_.list()[index].number != 0)
            json_.add(captions_.list()[index].number);
    }
    json_.endList();
}

void PageLines::addWords(const Explanation &explanation) {
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
void PageLines::markFindings(const Explanation &explanation) {
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

void PageLines::add(const Explanation &explanation) {
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
    json_.listMember("advice", explanation.advice);
    json_.endObject();
    markFindings(explanation);
}

void PageLines::addCodes() {
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

void PageLines::addFindings(bool &hasAdvice) {
    json_.name("findings");
    json_.beginList();
    for (const Finding &finding : findings_) {
        json_.beginObject();
        json_.member("line", finding.line);
        json_.member("timecode", std::string_view(finding.timecode));
        if (finding.frame)
            json_.member("frame", *finding.frame);
        json_.listMember("words", finding.words);
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

std::size_t PageLines::placeOf(std::uint32_t line, std::uint32_t frame) const {
    const auto found = starts_.find(line);
    if (found == starts_.end())
        return 0;
    const std::vector<std::size_t> &starts = found->second;
    return static_cast<std::size_t>(std::upper_bound(starts.begin(), starts.end(), frame) -
                                    starts.begin()) -
           1;
}

} // namespace norvane

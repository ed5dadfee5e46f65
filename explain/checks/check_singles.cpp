#include "explain/checks/check_singles.h"

#include "explain/standard/short_list.h"

namespace norvane {

void SingleCheck::look(const SccLine &line, bool hasSome, Findings &findings) {
    constexpr std::size_t kMost = 4;
    if (count_ > 0 && !line.words.empty() && line.words[0].repeats) {
        if (count_-- <= kMost) {
            codesOnce_.pop_back();
            frames_.pop_back();
        }
    }
    report(findings);
    if (!hasSome)
        return;
    line_ = line.number;
    timecode_ = line.data.timecode;
    for (std::size_t i = 0; i < line.words.size(); ++i) {
        const SccWord &word = line.words[i];
        const bool goesOn = i + 1 < line.words.size() && line.words[i + 1].repeats;
        if (isSentTwice(*word.meaning) && !word.repeats && !goesOn && count_++ < kMost) {
            codesOnce_.push_back(word.code);
            frames_.push_back(i);
        }
    }
}

void SingleCheck::report(Findings &findings) {
    if (count_ > 0) {
        findings.add(line_, FindingKind::single, [this] {
            ShortList list;
            Finding finding;
            for (const std::uint16_t code : codesOnce_) {
                list.add(wordOf(code));
                finding.words.push_back(wordOf(code));
            }
            for (std::size_t i = codesOnce_.size(); i < count_; ++i)
                list.add("");
            finding.text = list.text() + (count_ == 1 ? " is" : " are") +
                           " sent only once, but the file sends its codes twice: correct the line.";
            finding.timecode = timecode_;
            finding.frame = frames_.front();
            return finding;
        });
    }
    count_ = 0;
    codesOnce_.clear();
    frames_.clear();
}

void SingleCheck::finish(Findings &findings) {
    report(findings);
    if (2 * repetitions_ <= codes_)
        findings.takeBack(FindingKind::single); // the file sends them once
}

} // namespace norvane

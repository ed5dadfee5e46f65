#include "explain/reports/explanation.h"

#include "decode/caption.h"
#include "explain/checks/refusal_help.h"
#include "transcript/layout.h"

#include <algorithm>

namespace norvane {

namespace {

std::size_t timesSent(const std::vector<SccWord> &words, std::size_t first) {
    std::size_t end = first + 1;
    if (words[first].meaning->kind == CodeKind::filler) {
        while (end < words.size() && words[end].meaning->kind == CodeKind::filler)
            ++end;
    } else if (end < words.size() && words[end].repeats &&
               words[end].digits == words[first].digits) {
        ++end;
    }
    return end - first;
}

} // namespace

Explainer::Explainer(Clock clock, const std::vector<Finding> &findings)
    : clock_(clock), findings_(findings) {
    const auto isOnParity = [](const Finding &one) { return one.kind == FindingKind::parity; };
    const auto found = std::find_if(findings.begin(), findings.end(), isOnParity);
    if (found != findings.end())
        parity_ = &*found;
}

std::vector<std::string> Explainer::textsOf(std::size_t line) const {
    std::vector<std::string> texts;
    auto next = std::partition_point(findings_.begin(), findings_.end(),
                                     [line](const Finding &one) { return one.line < line; });
    for (; next != findings_.end() && next->line == line; ++next) {
        if (next->kind != FindingKind::digits && next->kind != FindingKind::altered)
            texts.push_back(next->text); // the others are among the remarks on the entry
    }
    return texts;
}

/// Where most of a file has wrong parity, one finding stands for all lines.
void Explainer::adviseOnParity() {
    const SccLine &line = *explanation_.line;
    const auto isWrong = [](const SccWord &word) { return word.isCode && !word.parity; };
    if (parity_ == nullptr || std::none_of(line.words.begin(), line.words.end(), isWrong))
        return;
    const std::vector<std::string> &advice = explanation_.advice;
    const bool isTold = std::any_of(advice.begin(), advice.end(), [this](const auto &text) {
        return text == parity_->text || text.starts_with("Wrong parity");
    });
    if (!isTold)
        explanation_.advice.push_back(parity_->text);
}

/// The start time and the text, or why there is none.
void Explainer::readEntry() {
    const SccLine &line = *explanation_.line;
    walk_.walk(line);
    explanation_.walk = &walk_;
    try {
        explanation_.start = startTime(line.data, clock_);
        correctComma(explanation_.start);
        if (!walk_.entry()) { // the decode knows the reason
            std::string ignored;
            appendCaption(ignored, line.data.hexText);
        }
        explanation_.entry = walk_.entry();
    } catch (const OutOfBoundsException &failure) {
        std::vector<std::string> &advice = explanation_.advice;
        const std::string help = noEntry(failure, line.data, clock_);
        if (std::find(advice.begin(), advice.end(), help) == advice.end())
            advice.push_back(help);
    }
}

const Explanation &Explainer::explain(const SccLine &line) {
    explanation_.line = &line;
    explanation_.start.clear();
    explanation_.entry.reset();
    explanation_.walk = nullptr;
    explanation_.words.clear();
    explanation_.advice = textsOf(line.number);
    if (line.refusal) {
        if (explanation_.advice.empty() && !findings_.empty())
            explanation_.advice.push_back(findings_.front().text); // on a file of another format
        return explanation_;
    }
    readEntry();
    for (std::size_t i = 0; i < line.words.size(); i += explanation_.words.back().times)
        explanation_.words.push_back({i, timesSent(line.words, i)});
    adviseOnParity();
    remarks_.clear();
    remarkOn(line, walk_, true, remarks_);
    for (EntryRemark &remark : remarks_)
        explanation_.advice.push_back(std::move(remark.text));
    return explanation_;
}

} // namespace norvane

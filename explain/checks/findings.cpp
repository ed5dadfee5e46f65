#include "explain/checks/findings.h"

#include <algorithm>

namespace norvane {

bool Findings::countedAlready(std::size_t line, FindingKind kind, std::uint32_t cause) {
    constexpr std::size_t kMostLines = 5;
    ++counts_[static_cast<std::size_t>(kind)];
    if (told_ == Told::each)
        return false;
    const auto key = static_cast<std::uint64_t>(kind) << 32U | cause;
    const auto [known, isNew] = byCause_.try_emplace(key, list_.size());
    if (isNew)
        return false;
    Finding &finding = list_[known->second];
    ++finding.count;
    if (finding.lines.size() < kMostLines && finding.lines.back() != line)
        finding.lines.push_back(line);
    return true;
}

void Findings::takeBack(FindingKind kind) {
    std::erase_if(list_, [kind](const Finding &finding) { return finding.kind == kind; });
    counts_[static_cast<std::size_t>(kind)] = 0;
}

void Findings::tellOnce(FindingKind kind, const std::string &text) {
    const auto first = std::find_if(list_.begin(), list_.end(), [kind](const Finding &finding) {
        return finding.kind == kind;
    });
    if (first == list_.end())
        return;
    Finding finding = std::move(*first);
    takeBack(kind);
    finding.text = text;
    finding.count = 1;
    finding.lines = {finding.line};
    list_.push_back(std::move(finding));
    counts_[static_cast<std::size_t>(kind)] = 1;
}

std::vector<Finding> Findings::take() {
    std::stable_sort(list_.begin(), list_.end(),
                     [](const Finding &a, const Finding &b) { return a.line < b.line; });
    for (Finding &finding : list_) // captions are reported later than their lines
        std::sort(finding.lines.begin() + 1, finding.lines.end());
    return std::move(list_);
}

Finding findingOn(const SccLine &line, std::string text) {
    Finding finding;
    finding.text = std::move(text);
    finding.timecode = line.data.timecode;
    return finding;
}

Finding findingOn(const SccLine &line, std::string text, std::size_t first,
                  std::vector<std::string> words) {
    Finding finding = findingOn(line, std::move(text));
    finding.frame = first;
    finding.words = std::move(words);
    return finding;
}

} // namespace norvane

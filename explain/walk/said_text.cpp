#include "explain/walk/said_text.h"

#include "framework/text/text.h"

#include <algorithm>

namespace norvane {

SaidLine::SaidLine(const SccLine &line) {
    for (const SccWord &word : line.words) {
        const std::size_t start = line.placeOf(word);
        const std::size_t end = start + word.digits.size();
        if (word.repeats)
            continue; // a decoder ignores it
        const bool isBackspace = word.meaning->code == code::kBs;
        if (isBackspace && !characters_.empty() && !characters_.back().text.empty()) {
            characters_.pop_back();
            continue;
        }
        if (word.meaning->kind == CodeKind::extended && !characters_.empty() &&
            !characters_.back().isGap())
            characters_.pop_back(); // it takes its place
        if (word.meaning->kind == CodeKind::text) {
            // One character for each byte that is not a filler.
            std::string_view shown = word.meaning->shown;
            for (std::size_t at = start; !shown.empty(); at += 2) {
                if (at == start && (word.meaning->code >> 8U) == 0)
                    continue;
                const std::size_t size = characterSize(shown);
                characters_.push_back({shown.substr(0, size), at, at + 2});
                shown.remove_prefix(size);
            }
        } else if (word.meaning->kind != CodeKind::filler) {
            characters_.push_back({word.meaning->shown, start, end});
        }
    }
}

std::string SaidLine::text() const {
    std::string text;
    for (const Character &character : characters_)
        text += character.shown();
    return text;
}

SaidText SaidLine::around(std::size_t first, std::size_t last) const {
    auto from = static_cast<std::size_t>(
        std::partition_point(characters_.begin(), characters_.end(),
                             [first](const Character &one) { return one.end <= first; }) -
        characters_.begin());
    std::size_t to = from;
    while (to < characters_.size() && characters_[to].start <= last)
        ++to;
    // Gaps at the ends are not part of it, letters beyond them are.
    while (from < to && characters_[from].isGap())
        ++from;
    while (from < to && characters_[to - 1].isGap())
        --to;
    if (from == to)
        return {};
    constexpr std::size_t kFarthest = 64; // no word of a language is longer, but a hostile line is
    for (std::size_t far = 0; far < kFarthest && from > 0 && !characters_[from - 1].isGap(); ++far)
        --from;
    for (std::size_t far = 0;
         far < kFarthest && to < characters_.size() && !characters_[to].isGap(); ++far)
        ++to;
    SaidText said{"", characters_[from].start, characters_[to - 1].end};
    for (std::size_t i = from; i < to; ++i)
        said.text += characters_[i].shown();
    return said;
}

} // namespace norvane
